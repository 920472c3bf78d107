#include "host/platform/operations.h"

#include "host/platform/cocoa/attach.h"
#include "host/platform/cocoa/context.h"
#include "host/platform/cocoa/current.h"
#include "host/platform/cocoa/pixel_buffer.h"
#include "host/platform/cocoa/pixel_format.h"
#include "host/platform/cocoa/swap_control.h"
#include "host/platform/cocoa/window_info.h"

namespace host::platform {

constinit const PlatformOperations operations = {
    .createPixelFormat = cocoa::createPixelFormat,
    .pixelFormatValue = cocoa::pixelFormatValue,
    .derivePixelFormat = cocoa::derivePixelFormat,
    .releasePixelFormat = cocoa::releasePixelFormat,
    .createContext = cocoa::createContext,
    .releaseContext = cocoa::releaseContext,
    .currentContext = cocoa::currentContext,
    .clearCurrentContext = cocoa::clearCurrentContext,
    .makeCurrent = cocoa::makeCurrent,
    .setView = cocoa::setView,
    .view = cocoa::view,
    .setPixelBuffer = cocoa::setPixelBuffer,
    .setReadObject = cocoa::setReadObject,
    .observeViewFrame = cocoa::observeViewFrame,
    .flushBuffer = cocoa::flushBuffer,
    .copyToPixmap = cocoa::copyToPixmap,
    .bufferAge = cocoa::bufferAge,
    .flushApplication = cocoa::flushApplication,
    .setSwapInterval = cocoa::setSwapInterval,
    .saveBinding = cocoa::saveBinding,
    .restoreBinding = cocoa::restoreBinding,
    .createPixelBuffer = cocoa::createPixelBuffer,
    .createPixmapBuffer = cocoa::createPixmapBuffer,
    .pixmapDepth = cocoa::pixmapDepth,
    .pixelBufferSize = cocoa::pixelBufferSize,
    .releasePixelBuffer = cocoa::releasePixelBuffer,
    .viewSize = cocoa::viewSize,
    .viewTitle = cocoa::viewTitle,
};

} // namespace host::platform
