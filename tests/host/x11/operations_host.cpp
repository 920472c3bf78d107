#include "host/operations_host.h"

#include "x11_fixture.h"

namespace {

class ServersHost final : public OperationsHost, private X11Host {
public:
    ServersHost() { SetUp(); }
    ~ServersHost() override { TearDown(); }
    unsigned implementation() const override { return onX11; }
    View makeView(int width, int height, const char *title) override {
        const Window made = window(width, height);
        XSync(application, False);
        if (title) setText(made, "_NET_WM_NAME", "UTF8_STRING", title);
        return viewOf(made);
    }
    void resizeView(const View &view, int width, int height) override {
        XResizeWindow(application, view.window, static_cast<unsigned>(width), static_cast<unsigned>(height));
        XSync(application, False);
    }
    View badView() override { return viewOf(0x12345); }
    void makeForeignCurrent() override {
        XVisualInfo wanted{};
        wanted.visualid = XVisualIDFromVisual(DefaultVisual(application, DefaultScreen(application)));
        int count = 0;
        XVisualInfo *visual = XGetVisualInfo(application, VisualIDMask, &wanted, &count);
        const GLXContext context = glXCreateContext(application, visual, nullptr, True);
        glXMakeCurrent(application, window(8, 8), context);
        XFree(visual);
    }
    bool isForeignCurrent() override { return glXGetCurrentDisplay() == application; }
    void refuseNext(const char *) override {} // a server cannot be made to fail

private:
    void TestBody() override {}
};

} // namespace

std::unique_ptr<OperationsHost> makeOperationsHost() {
    return std::make_unique<ServersHost>();
}
