#include "host/operations_host.h"

#include "host/platform/recording/control.h"
#include "host/platform/recording/script.h"

using namespace host::platform;

namespace {

class RecordingHost final : public OperationsHost {
public:
    RecordingHost() { recordingReset(); }
    ~RecordingHost() override { recordingReset(); }
    unsigned implementation() const override { return onRecording; }
    View makeView(int width, int height, const char *title) override {
        recordingSetWindow(++m_lastWindow, width, height, title ? title : "");
        return {7, m_lastWindow};
    }
    void resizeView(const View &view, int width, int height) override {
        recordingSetWindow(view.window, width, height, "");
    }
    View badView() override { return {7, 4711}; }
    void makeForeignCurrent() override { recordingMakeForeignCurrent(9); }
    bool isForeignCurrent() override { return recording::threadBinding().foreign == 9; }
    void refuseNext(const char *operation) override { recordingFailNext(operation); }

private:
    uint64_t m_lastWindow = 0;
};

} // namespace

std::unique_ptr<OperationsHost> makeOperationsHost() {
    return std::make_unique<RecordingHost>();
}
