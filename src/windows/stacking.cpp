#include "windows/stacking.h"

#include <QGuiApplication>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <string_view>

#include <xcb/xcb.h>

namespace pixano {
namespace {

/// Nothing where the display is no X display.
xcb_connection_t* Display()
{
    const auto* const x = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x == nullptr ? nullptr : x->connection();
}

xcb_window_t Root(xcb_connection_t* display)
{
    return xcb_setup_roots_iterator(xcb_get_setup(display)).data->root;
}

template <typename Reply>
std::unique_ptr<Reply, decltype(&std::free)> Owned(Reply* reply)
{
    return {reply, &std::free};
}

xcb_atom_t AtomOf(xcb_connection_t* display, std::string_view property)
{
    const auto asked =
        xcb_intern_atom(display, 0, static_cast<std::uint16_t>(property.size()), property.data());
    const auto atom = Owned(xcb_intern_atom_reply(display, asked, nullptr));
    return atom == nullptr ? static_cast<xcb_atom_t>(XCB_ATOM_NONE) : atom->atom;
}

/// The windows that the property of the root window lists; empty where there is none.
std::vector<WId> Listed(xcb_connection_t* display, xcb_atom_t property)
{
    constexpr std::uint32_t Most = 10'000;
    const auto asked =
        xcb_get_property(display, 0, Root(display), property, XCB_ATOM_WINDOW, 0, Most);
    const auto reply = Owned(xcb_get_property_reply(display, asked, nullptr));
    if (reply == nullptr || reply->type != XCB_ATOM_WINDOW) return {};
    const auto* const first = static_cast<const xcb_window_t*>(xcb_get_property_value(reply.get()));
    return {first, first + reply->value_len};
}

}  // namespace

Stacking::Stacking()
{
    xcb_connection_t* const display = Display();
    if (display == nullptr) return;
    constexpr int Settling = 50;
    calm_.setSingleShot(true);
    calm_.setInterval(Settling);
    connect(&calm_, &QTimer::timeout, this, &Stacking::AskAgain);
    property_ = AtomOf(display, "_NET_CLIENT_LIST_STACKING");
    qGuiApp->installNativeEventFilter(this);
}

bool Stacking::IsAbove(const QWidget& window, const QWidget& other) const
{
    const auto place = [this](const QWidget& of) {
        return std::ranges::find(lowestFirst_, of.winId());
    };
    const auto below = place(other);
    return below == lowestFirst_.end() || place(window) > below;
}

void Stacking::Raise(QWidget& window)
{
    window.raise();
    if (xcb_connection_t* const display = Display(); display != nullptr) xcb_flush(display);
}

void Stacking::PutAbove(QWidget& window, const QWidget& other)
{
    xcb_connection_t* const display = Display();
    if (display == nullptr) {
        window.raise();
        return;
    }
    // The window manager has put both into frames: it alone can do it, and is asked as clients are
    // to ask for it.
    xcb_configure_request_event_t wish{};
    wish.response_type = XCB_CONFIGURE_REQUEST;
    wish.parent = Root(display);
    wish.window = static_cast<xcb_window_t>(window.winId());
    wish.sibling = static_cast<xcb_window_t>(other.winId());
    wish.stack_mode = XCB_STACK_MODE_ABOVE;
    wish.value_mask = XCB_CONFIG_WINDOW_SIBLING | XCB_CONFIG_WINDOW_STACK_MODE;
    xcb_send_event(display, 0, wish.parent,
                   XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char*>(&wish));
    xcb_flush(display);
}

bool Stacking::nativeEventFilter(const QByteArray& /*type*/, void* message, qintptr* /*result*/)
{
    constexpr unsigned SentByAClient = 0x80;
    const auto* const event = static_cast<const xcb_generic_event_t*>(message);
    if ((event->response_type & ~SentByAClient) == XCB_PROPERTY_NOTIFY &&
        reinterpret_cast<const xcb_property_notify_event_t*>(event)->atom == property_)
        calm_.start();
    return false;
}

void Stacking::AskAgain()
{
    constexpr int Enough = 3;
    const std::vector<WId> before = std::exchange(lowestFirst_, Listed(Display(), property_));
    same_ = lowestFirst_ == before ? same_ + 1 : 0;
    if (same_ < Enough) emit Changed();
}

}  // namespace pixano
