#include "x11_fixture.h"

#include <X11/Xatom.h>

#include <string>

namespace {

using WindowInfoOnX11 = X11Host;

TEST_F(WindowInfoOnX11, TitleIsUtf8FromWhicheverPropertyThereIs) {
    const auto setTitle = [&](Window window, const char *name, const char *type, const std::string &value) {
        XChangeProperty(application, window, XInternAtom(application, name, False),
                        XInternAtom(application, type, False), 8, PropModeReplace,
                        reinterpret_cast<const unsigned char *>(value.data()), static_cast<int>(value.size()));
        XSync(application, False);
    };
    const Window target = window(8, 8);
    XStoreName(application, target, "not sent yet");
    EXPECT_EQ(operations.viewTitle(viewOf(target)), "not sent yet");
    XDeleteProperty(application, target, XA_WM_NAME);
    XSync(application, False);
    for (const View &none : {View{0, target}, View{}, viewOf(0x12345)})
        EXPECT_EQ(operations.viewTitle(none), "");
    setTitle(target, "WM_NAME", "STRING", "Gr\xf6\xdf\x65");
    EXPECT_EQ(operations.viewTitle({0, target}), "Gr\u00f6\u00dfe");
    setTitle(target, "_NET_WM_NAME", "UTF8_STRING", "\u30bf\u30a4\u30c8\u30eb");
    EXPECT_EQ(operations.viewTitle({0, target}), "\u30bf\u30a4\u30c8\u30eb");
    const Window view = XCreateSimpleWindow(application, target, 0, 0, 4, 4, 0, 0, 0);
    EXPECT_EQ(operations.viewTitle(viewOf(view)), "\u30bf\u30a4\u30c8\u30eb");
}

} // namespace
