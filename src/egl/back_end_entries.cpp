// The functions that back ends call: queries of the current context, and of the settings behind their opaque pointer.
#include "egl/context.h"
#include "egl/display.h"
#include "egl/gui_link.h"
#include "egl/state.h"
#include "egl/thread_record.h"
#include "zelvane/back_end.h"

using namespace egl;

const zvThread *zvCurrentThread(void) {
    return &threadRecord.backEnd;
}

zvEsContext zvCurrentEsContext(void) {
    return threadRecord.currentEs ? threadRecord.currentEs->esContext.load() : nullptr;
}

int zvFindImage(const void *handle, zvImage *image) {
    Display *const display = threadRecord.currentDisplay;
    const auto found = display ? display->standardImages.find(handle) : nullptr;
    if (!found || !image) return 0;
    if (!threadRecord.current || threadRecord.current->group != found->group) return -1;
    *image = found->storage;
    return 1;
}

uint64_t zvCurrentFrameNumber(void) {
    return State::frameNumber();
}

void zvPostFrameMessage(zvMessage message) {
    message.header.frameStamp = State::frameNumber();
    attachedLink().post(message);
}

int zvGuiIsAttached(void) {
    return attachedLink().isAttached() ? 1 : 0;
}

const char *zvSettingsProfileName(const void *settings) {
    return settings ? static_cast<const Settings *>(settings)->getCurrentProfile().c_str() : nullptr;
}

const char *zvSettingsProfilesDirectory(const void *settings) {
    return settings ? static_cast<const Settings *>(settings)->getProfilesDirectory().c_str() : nullptr;
}

const char *zvSettingsProfileText(const void *settings) {
    return settings ? state().profileText().c_str() : nullptr;
}
