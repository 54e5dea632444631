#include "tarnix/platform/native.h"
#include "tarnix/platform/posix/capitals.h"
#include "tarnix/platform/posix/wide_text.h"
#include "tarnix/platform/posix/x11.h"

#include <string_view>
#include <vector>

namespace tarnix::platform::native {
namespace {

using x11::Display;
using x11::Owned;

/// Number of a name that clients and server share; 0 if it was never used.
xcb_atom_t atom(const Display& display, std::string_view name) {
    const auto cookie = ::xcb_intern_atom(display.connection(), /*only_if_exists=*/1,
                                          static_cast<std::uint16_t>(name.size()), name.data());
    const Owned<xcb_intern_atom_reply_t> reply(
        ::xcb_intern_atom_reply(display.connection(), cookie, nullptr));
    return reply != nullptr ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

/// A string property of a window; an empty string where it has none.
std::string textOf(const Display& display, xcb_window_t window, xcb_atom_t property) {
    constexpr std::uint32_t kLongest = 1024;  // in units of four bytes
    const auto cookie = ::xcb_get_property(display.connection(), /*_delete=*/0, window, property,
                                           XCB_GET_PROPERTY_TYPE_ANY, /*long_offset=*/0, kLongest);
    const Owned<xcb_get_property_reply_t> reply(
        ::xcb_get_property_reply(display.connection(), cookie, nullptr));
    if (reply == nullptr || reply->format != 8) {
        return "";
    }
    return {static_cast<const char*>(::xcb_get_property_value(reply.get())),
            static_cast<std::size_t>(::xcb_get_property_value_length(reply.get()))};
}

/// The title in UTF-8, which newer programs set, else the old one.
std::string titleOf(const Display& display, xcb_window_t window, xcb_atom_t utf8Title) {
    const std::string title =
        utf8Title != XCB_ATOM_NONE ? textOf(display, window, utf8Title) : std::string();
    return title.empty() ? textOf(display, window, XCB_ATOM_WM_NAME) : title;
}

/// A title as titles are compared.
std::u16string comparable(const std::string& title) { return inCapitals(wideName(title)); }

/// The first window with this title at or below `window`, the uppermost first; 0 for none. Window
/// managers put the windows of programs into windows of their own.
xcb_window_t findBelow(const Display& display, xcb_window_t window, xcb_atom_t utf8Title,
                       const std::u16string& title, int levels) {
    const auto cookie = ::xcb_query_tree(display.connection(), window);
    const Owned<xcb_query_tree_reply_t> tree(
        ::xcb_query_tree_reply(display.connection(), cookie, nullptr));
    if (tree == nullptr) {
        return 0;
    }
    const xcb_window_t* const children = ::xcb_query_tree_children(tree.get());
    for (int i = ::xcb_query_tree_children_length(tree.get()) - 1; i >= 0; --i) {
        if (comparable(titleOf(display, children[i], utf8Title)) == title) {
            return children[i];
        }
        const xcb_window_t inside =
            levels > 1 ? findBelow(display, children[i], utf8Title, title, levels - 1) : 0;
        if (inside != 0) {
            return inside;
        }
    }
    return 0;
}

ScreenArea insideOf(const Display& display, xcb_window_t window) {
    xcb_connection_t* const connection = display.connection();
    const auto sizeCookie = ::xcb_get_geometry(connection, window);
    const auto placeCookie =
        ::xcb_translate_coordinates(connection, window, display.screen().root, 0, 0);
    const Owned<xcb_get_geometry_reply_t> size(
        ::xcb_get_geometry_reply(connection, sizeCookie, nullptr));
    const Owned<xcb_translate_coordinates_reply_t> place(
        ::xcb_translate_coordinates_reply(connection, placeCookie, nullptr));
    if (size == nullptr || place == nullptr) {
        return {};
    }
    return {.left = place->dst_x,
            .top = place->dst_y,
            .right = place->dst_x + size->width,
            .bottom = place->dst_y + size->height};
}

/// The windows directly on the screen, the lowest first: what a window manager calls its clients,
/// without one the children of the root.
std::vector<xcb_window_t> topWindows(const Display& display) {
    constexpr std::uint32_t kMost = 1U << 16U;
    constexpr std::uint8_t kBitsOfWindow = 32;
    const xcb_window_t root = display.screen().root;
    const Owned<xcb_get_property_reply_t> clients(::xcb_get_property_reply(
        display.connection(),
        ::xcb_get_property(display.connection(), /*_delete=*/0, root,
                           atom(display, "_NET_CLIENT_LIST_STACKING"), XCB_GET_PROPERTY_TYPE_ANY,
                           /*long_offset=*/0, kMost),
        nullptr));
    if (clients != nullptr && clients->format == kBitsOfWindow && clients->value_len > 0) {
        const auto* const first =
            static_cast<const xcb_window_t*>(::xcb_get_property_value(clients.get()));
        return {first, first + clients->value_len};
    }
    const Owned<xcb_query_tree_reply_t> tree(::xcb_query_tree_reply(
        display.connection(), ::xcb_query_tree(display.connection(), root), nullptr));
    if (tree == nullptr) {
        return {};
    }
    const xcb_window_t* const first = ::xcb_query_tree_children(tree.get());
    return {first, first + ::xcb_query_tree_children_length(tree.get())};
}

}  // namespace

ScreenArea virtualScreen() {
    const Display display;
    return display ? ScreenArea{.right = display.screen().width_in_pixels,
                                .bottom = display.screen().height_in_pixels}
                   : ScreenArea();
}

WindowOnScreen findWindow(const std::string& title) {
    const Display display;
    if (!display) {
        return {};
    }
    constexpr int kLevels = 3;
    const xcb_window_t window = findBelow(
        display, display.screen().root, atom(display, "_NET_WM_NAME"), comparable(title), kLevels);
    return window != 0 ? WindowOnScreen{.handle = window, .inside = insideOf(display, window)}
                       : WindowOnScreen();
}

bool isSameTitle(const std::string& title, const std::string& other) {
    return comparable(title) == comparable(other);
}

void visitTopWindows(const std::function<bool(const TopWindow&)>& visit) {
    const Display display;
    if (!display) {
        return;
    }
    const xcb_atom_t utf8Title = atom(display, "_NET_WM_NAME");
    const std::vector<xcb_window_t> windows = topWindows(display);
    for (auto window = windows.rbegin(); window != windows.rend(); ++window) {
        const TopWindow shown = {
            .title = titleOf(display, *window, utf8Title),
            .clientArea = [&display, window] { return insideOf(display, *window); }};
        if (!visit(shown)) {
            return;
        }
    }
}

}  // namespace tarnix::platform::native
