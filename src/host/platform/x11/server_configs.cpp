#include "host/platform/x11/server_configs.h"

#include <string_view>

#include <X11/Xlibint.h>
#undef min
#undef max

#include <GL/glxproto.h>

#include "host/platform/x11/glx.h"

namespace host::platform::x11 {

namespace {

constexpr uint32_t mostWords = 1 << 24; // of a reply; servers with a thousand configs send a hundred thousand

// Called with the display locked.
bool requestConfigs(Display *display, int opcode, int screen, xGLXGetFBConfigsReply &reply) {
    auto *request =
        static_cast<xGLXGetFBConfigsReq *>(_XGetRequest(display, static_cast<CARD8>(opcode), sz_xGLXGetFBConfigsReq));
    request->glxCode = X_GLXGetFBConfigs;
    request->screen = static_cast<CARD32>(screen);
    return _XReply(display, reinterpret_cast<xReply *>(&reply), 0, False);
}

} // namespace

ServerConfigs::ServerConfigs(Display *display, int screen) {
    const char *vendor = glx().clientString(display, GLX_VENDOR);
    if (!vendor || !std::string_view(vendor).starts_with("Mesa")) return;
    int opcode = 0, firstEvent = 0, firstError = 0;
    if (!XQueryExtension(display, "GLX", &opcode, &firstEvent, &firstError)) return;

    LockDisplay(display);
    xGLXGetFBConfigsReply reply{};
    if (requestConfigs(display, opcode, screen, reply)) {
        if (reply.length == uint64_t(reply.numFBConfigs) * reply.numAttribs * 2 && reply.length <= mostWords) {
            m_pairsOfRow = reply.numAttribs;
            m_values.resize(reply.length);
            _XRead(display, reinterpret_cast<char *>(m_values.data()), static_cast<long>(m_values.size() * 4));
        } else {
            _XEatDataWords(display, reply.length);
        }
    }
    UnlockDisplay(display);
    if (display->synchandler) display->synchandler(display);
}

ServerConfigs::Row ServerConfigs::find(uint32_t place, int id) const {
    const size_t length = size_t(m_pairsOfRow) * 2;
    if (!length || (place + 1) * length > m_values.size()) return {};
    const Row row(m_values.data() + place * length, m_pairsOfRow);
    return row.value(GLX_FBCONFIG_ID) == id ? row : Row();
}

int ServerConfigs::Row::value(int attribute) const {
    for (uint32_t i = 0; i < m_count; ++i) {
        if (m_pairs[2 * i] == static_cast<uint32_t>(attribute)) return static_cast<int>(m_pairs[2 * i + 1]);
    }
    return 0;
}

} // namespace host::platform::x11
