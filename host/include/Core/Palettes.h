#pragma once

#include <Core/Collection.h>
#include <Core/Enums.h>
#include <Core/Event.h>

#include <string>

namespace adsk::core {

/// The page of a palette has sent something to the module.
class HTMLEventArgs : public EventArgs {
public:
    static const char* classType();  ///< "adsk::core::HTMLEventArgs"

    /// The name that the page gave to what it sent.
    [[nodiscard]] virtual std::string action() const = 0;

    /// What the page sent, often JSON; may be empty.
    [[nodiscard]] virtual std::string data() const = 0;

    /// What the page gets as the answer, empty at first.
    [[nodiscard]] virtual std::string returnData() const = 0;
    /// Replaces what an earlier handler of this notification answered.
    virtual bool returnData(const std::string& value) = 0;
};

/// Notified of what the page of a palette sends with `adsk.fusionSendData`.
class HTMLEventHandler : public EventHandlerOf<HTMLEventArgs> {};

/// The event of `Palette::incomingFromHTML`.
class HTMLEvent : public EventOf<HTMLEventHandler> {
public:
    static const char* classType();  ///< "adsk::core::HTMLEvent"
};

/// A window of the host that shows a web page and stays open while commands run. Positions and
/// sizes are in screen pixels. Setting them has no effect on what docking determines.
class Palette : public Base {
public:
    static const char* classType();  ///< "adsk::core::Palette"

    /// Unique among all palettes; never empty.
    [[nodiscard]] virtual std::string id() const = 0;

    /// The title of the window.
    [[nodiscard]] virtual std::string name() const = 0;
    /// Shown at once.
    virtual bool name(const std::string& value) = 0;

    /// The address of the page that it shows, or the path of a local file.
    [[nodiscard]] virtual std::string htmlFileURL() const = 0;
    /// True also for an address that cannot be reached.
    virtual bool htmlFileURL(const std::string& value) = 0;

    /// Whether the window shows. The user's close button sets it to false and does not delete the
    /// palette.
    [[nodiscard]] virtual bool isVisible() const = 0;
    /// Shows or hides the window; the page stays loaded.
    virtual bool isVisible(bool value) = 0;

    /// Where it is docked; floating at first.
    [[nodiscard]] virtual PaletteDockingStates dockingState() const = 0;
    /// Not limited by `dockingOption`.
    virtual bool dockingState(PaletteDockingStates value) = 0;

    /// Where the user may dock it.
    [[nodiscard]] virtual PaletteDockingOptions dockingOption() const = 0;
    /// Does not move a palette that is docked already.
    virtual bool dockingOption(PaletteDockingOptions value) = 0;

    /// The left edge on the screen.
    [[nodiscard]] virtual int left() const = 0;
    /// Undocks the palette.
    virtual bool left(int value) = 0;

    /// The upper edge on the screen.
    [[nodiscard]] virtual int top() const = 0;
    /// Undocks the palette.
    virtual bool top(int value) = 0;

    /// The width, 200 unless it was created with another.
    [[nodiscard]] virtual int width() const = 0;
    /// No effect while it is docked at the top or the bottom.
    virtual bool width(int value) = 0;

    /// The height, 200 unless it was created with another.
    [[nodiscard]] virtual int height() const = 0;
    /// No effect while it is docked at the left or the right.
    virtual bool height(int value) = 0;

    /// Moves it on the screen; a docked palette floats from then on.
    virtual bool setPosition(int left, int top) = 0;

    /// Resizes it as far as docking allows; true in any case.
    virtual bool setSize(int width, int height) = 0;

    /// Fired when the page sends something to the module.
    [[nodiscard]] virtual Ptr<HTMLEvent> incomingFromHTML() const = 0;

    /// Calls the page's `window.fusionJavaScriptHandler` with these two strings and returns its
    /// answer; empty for a page that does not answer. This host runs no pages: the session answers
    /// in their place, at once.
    virtual std::string sendInfoToHTML(const std::string& action, const std::string& data) = 0;

    /// Removes it; this object is not valid afterwards. False for a palette of the host's own.
    virtual bool deleteMe() = 0;
};

/// All palettes of the host, in order of creation.
class Palettes : public CollectionById<Palette> {
public:
    static const char* classType();  ///< "adsk::core::Palettes"

    /// Adds a floating palette. Null when the id is empty or in use. `useNewWebBrowser` selects the
    /// browser that shows the page.
    virtual Ptr<Palette> add(const std::string& id, const std::string& name,
                             const std::string& htmlFileURL, bool isVisible, bool showCloseButton,
                             bool isResizable, int width = 200, int height = 200,
                             bool useNewWebBrowser = true) = 0;
};

}  // namespace adsk::core
