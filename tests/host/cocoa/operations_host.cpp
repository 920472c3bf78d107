#include "host/operations_host.h"

#include "host/cocoa/platform_log.h"

using namespace host::platform;

namespace {

class CocoaHost final : public OperationsHost {
public:
    unsigned implementation() const override { return onCocoa; }
    View makeView(int width, int height, const char *title) override {
        View view = cocoa_tests::makeView(width, height, title);
        view.display = 7;
        return view;
    }
    void resizeView(const View &view, int width, int height) override { cocoa_tests::setFrame(view, width, height); }
    View badView() override { return cocoa_tests::makeOther(); }
    void makeForeignCurrent() override { m_foreign = cocoa_tests::makeForeignCurrent(); }
    bool isForeignCurrent() override { return m_foreign && cocoa_tests::current() == m_foreign; }
    void refuseNext(const char *operation) override {
        cocoa_tests::failingClass = "NSOpenGL" + std::string(operation + sizeof("create") - 1);
    }

private:
    const void *m_foreign = nullptr;
};

} // namespace

std::unique_ptr<OperationsHost> makeOperationsHost() {
    return std::make_unique<CocoaHost>();
}
