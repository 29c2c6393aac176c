#include "tools/demo/xdisplay.h"

#include <xcb/xtest.h>

#include <cstdlib>
#include <cstring>

namespace {

constexpr uint32_t longestTitle = 64; // in units of four bytes

struct Free {
    void operator()(void *reply) const { std::free(reply); }
};
template <typename Reply>
using Owned = std::unique_ptr<Reply, Free>;

template <typename Reply>
Owned<Reply> owned(Reply *reply) {
    return Owned<Reply>(reply);
}

} // namespace

XDisplay::XDisplay() : m_connection(xcb_connect(nullptr, nullptr), &xcb_disconnect) {
    if (isConnected()) {
        m_root = xcb_setup_roots_iterator(xcb_get_setup(m_connection.get())).data->root;
    }
}

bool XDisplay::isConnected() const {
    return xcb_connection_has_error(m_connection.get()) == 0;
}

bool XDisplay::canTap() const {
    if (!isConnected()) {
        return false;
    }
    const xcb_query_extension_reply_t *xtest =
        xcb_get_extension_data(m_connection.get(), &xcb_test_id);
    return xtest != nullptr && xtest->present != 0;
}

xcb_window_t XDisplay::findWindow(const QByteArray &titleStart) const {
    xcb_connection_t *connection = m_connection.get();
    const auto tree =
        owned(xcb_query_tree_reply(connection, xcb_query_tree(connection, m_root), nullptr));
    if (!tree) {
        return 0;
    }
    const xcb_window_t *windows = xcb_query_tree_children(tree.get());
    for (int i = 0; i < xcb_query_tree_children_length(tree.get()); ++i) {
        if (isVisible(windows[i]) && title(windows[i]).startsWith(titleStart)) {
            return windows[i];
        }
    }
    return 0;
}

bool XDisplay::isVisible(xcb_window_t window) const {
    xcb_connection_t *connection = m_connection.get();
    const auto attributes = owned(xcb_get_window_attributes_reply(
        connection, xcb_get_window_attributes(connection, window), nullptr));
    return attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE &&
           attributes->_class == XCB_WINDOW_CLASS_INPUT_OUTPUT;
}

QByteArray XDisplay::title(xcb_window_t window) const {
    xcb_connection_t *connection = m_connection.get();
    const auto property =
        owned(xcb_get_property_reply(connection,
                                     xcb_get_property(connection, 0, window, atom("_NET_WM_NAME"),
                                                      XCB_GET_PROPERTY_TYPE_ANY, 0, longestTitle),
                                     nullptr));
    if (!property) {
        return {};
    }
    return QByteArray(static_cast<const char *>(xcb_get_property_value(property.get())),
                      xcb_get_property_value_length(property.get()));
}

xcb_atom_t XDisplay::atom(const QByteArray &name) const {
    xcb_connection_t *connection = m_connection.get();
    const auto reply = owned(xcb_intern_atom_reply(
        connection,
        xcb_intern_atom(connection, 0, static_cast<uint16_t>(name.size()), name.constData()),
        nullptr));
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

QImage XDisplay::picture(xcb_window_t window) const {
    xcb_connection_t *connection = m_connection.get();
    const auto geometry =
        owned(xcb_get_geometry_reply(connection, xcb_get_geometry(connection, window), nullptr));
    if (!geometry || geometry->depth != 24) {
        return {};
    }
    const auto reply =
        owned(xcb_get_image_reply(connection,
                                  xcb_get_image(connection, XCB_IMAGE_FORMAT_Z_PIXMAP, window, 0, 0,
                                                geometry->width, geometry->height, ~0U),
                                  nullptr));
    QImage image(geometry->width, geometry->height, QImage::Format_RGB32);
    if (!reply || xcb_get_image_data_length(reply.get()) != image.sizeInBytes()) {
        return {};
    }
    std::memcpy(image.bits(), xcb_get_image_data(reply.get()),
                static_cast<size_t>(image.sizeInBytes()));
    return image;
}

void XDisplay::tap(xcb_window_t window, QPoint point, PointerButton button) {
    xcb_connection_t *connection = m_connection.get();
    const auto place = owned(xcb_translate_coordinates_reply(
        connection,
        xcb_translate_coordinates(connection, window, m_root, static_cast<int16_t>(point.x()),
                                  static_cast<int16_t>(point.y())),
        nullptr));
    if (!place) {
        return;
    }
    xcb_test_fake_input(connection, XCB_MOTION_NOTIFY, 0, XCB_CURRENT_TIME, m_root, place->dst_x,
                        place->dst_y, 0);
    for (const uint8_t type : {uint8_t{XCB_BUTTON_PRESS}, uint8_t{XCB_BUTTON_RELEASE}}) {
        xcb_test_fake_input(connection, type, static_cast<uint8_t>(button), XCB_CURRENT_TIME,
                            m_root, 0, 0, 0);
    }
    xcb_flush(connection);
}

void XDisplay::close(xcb_window_t window) {
    xcb_client_message_event_t event = {};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = atom("WM_PROTOCOLS");
    event.data.data32[0] = atom("WM_DELETE_WINDOW");
    event.data.data32[1] = XCB_CURRENT_TIME;
    xcb_send_event(m_connection.get(), 0, window, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char *>(&event));
    xcb_flush(m_connection.get());
}

xcb_window_t XDisplay::cover(xcb_window_t window) {
    xcb_connection_t *connection = m_connection.get();
    const auto area =
        owned(xcb_get_geometry_reply(connection, xcb_get_geometry(connection, window), nullptr));
    const auto place = owned(xcb_translate_coordinates_reply(
        connection, xcb_translate_coordinates(connection, window, m_root, 0, 0), nullptr));
    if (!area || !place) {
        return 0;
    }
    const uint32_t values[] = {0, 1}; // background, override redirect
    const xcb_window_t cover = xcb_generate_id(connection);
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, cover, m_root, place->dst_x, place->dst_y,
                      area->width, area->height, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
                      XCB_COPY_FROM_PARENT, XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT, values);
    xcb_map_window(connection, cover);
    xcb_flush(connection);
    return cover;
}

void XDisplay::remove(xcb_window_t cover) {
    xcb_destroy_window(m_connection.get(), cover);
    xcb_flush(m_connection.get());
}
