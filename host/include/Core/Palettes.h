#pragma once

#include <Core/Collection.h>
#include <Core/Enums.h>

#include <string>

namespace adsk::core {

/// A window of the host that shows a page and stands beside the commands. Lengths are in pixels of
/// the screen.
class Palette : public Base {
public:
    static const char* classType();

    [[nodiscard]] virtual std::string id() const = 0;

    [[nodiscard]] virtual std::string name() const = 0;
    virtual bool name(const std::string& value) = 0;

    /// The address of the page that it shows.
    [[nodiscard]] virtual std::string htmlFileURL() const = 0;
    virtual bool htmlFileURL(const std::string& value) = 0;

    /// The user's close button sets it to false, and does not delete the palette.
    [[nodiscard]] virtual bool isVisible() const = 0;
    virtual bool isVisible(bool value) = 0;

    [[nodiscard]] virtual PaletteDockingStates dockingState() const = 0;
    virtual bool dockingState(PaletteDockingStates value) = 0;

    [[nodiscard]] virtual PaletteDockingOptions dockingOption() const = 0;
    virtual bool dockingOption(PaletteDockingOptions value) = 0;

    [[nodiscard]] virtual int left() const = 0;
    virtual bool left(int value) = 0;

    [[nodiscard]] virtual int top() const = 0;
    virtual bool top(int value) = 0;

    [[nodiscard]] virtual int width() const = 0;
    virtual bool width(int value) = 0;

    [[nodiscard]] virtual int height() const = 0;
    virtual bool height(int value) = 0;

    /// Moves it on the screen; a docked one floats from then on.
    virtual bool setPosition(int left, int top) = 0;

    /// True even where docking keeps the size as it is.
    virtual bool setSize(int width, int height) = 0;

    /// False for a palette of the host's own.
    virtual bool deleteMe() = 0;
};

/// All palettes of the host.
class Palettes : public CollectionById<Palette> {
public:
    static const char* classType();

    /// Makes a floating palette; null where the id is empty or in use.
    virtual Ptr<Palette> add(const std::string& id, const std::string& name,
                             const std::string& htmlFileURL, bool isVisible, bool showCloseButton,
                             bool isResizable, int width = 200, int height = 200,
                             bool useNewWebBrowser = true) = 0;
};

}  // namespace adsk::core
