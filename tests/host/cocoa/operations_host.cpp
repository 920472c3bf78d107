#include "host/operations_host.h"

#include "host/platform/recording/appkit.h"

using namespace host::platform;

namespace {

class CocoaHost final : public OperationsHost {
public:
    unsigned implementation() const override { return onCocoa; }
    View makeView(int width, int height, const char *title) override {
        View view = recorded_appkit::makeView(width, height, title);
        view.display = 7;
        return view;
    }
    void resizeView(const View &view, int width, int height) override {
        recorded_appkit::setFrame(view, width, height);
    }
    View badView() override { return recorded_appkit::makeOther(); }
    void makeForeignCurrent() override { m_foreign = recorded_appkit::makeForeignCurrent(); }
    bool isForeignCurrent() override { return m_foreign && recorded_appkit::current() == m_foreign; }
    void refuseNext(const char *operation) override {
        recorded_appkit::failingClass = "NSOpenGL" + std::string(operation + sizeof("create") - 1);
    }

private:
    const void *m_foreign = nullptr;
};

} // namespace

std::unique_ptr<OperationsHost> makeOperationsHost() {
    return std::make_unique<CocoaHost>();
}
