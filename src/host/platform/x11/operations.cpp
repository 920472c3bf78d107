#include "host/platform/operations.h"

#include "host/platform/x11/attach.h"
#include "host/platform/x11/connection.h"
#include "host/platform/x11/context.h"
#include "host/platform/x11/current.h"
#include "host/platform/x11/pixel_buffer.h"
#include "host/platform/x11/pixel_format.h"
#include "host/platform/x11/pixmap_copies.h"
#include "host/platform/x11/swap_control.h"
#include "host/platform/x11/window_info.h"

namespace host::platform {

constinit const PlatformOperations operations = {
    .createPixelFormat = x11::createPixelFormat,
    .pixelFormatValue = x11::pixelFormatValue,
    .derivePixelFormat = x11::derivePixelFormat,
    .releasePixelFormat = x11::releasePixelFormat,
    .createContext = x11::createContext,
    .releaseContext = x11::releaseContext,
    .currentContext = x11::currentContext,
    .clearCurrentContext = x11::clearCurrentContext,
    .makeCurrent = x11::makeCurrent,
    .setView = x11::setView,
    .view = x11::view,
    .setPixelBuffer = x11::setPixelBuffer,
    .setReadObject = x11::setReadObject,
    .observeViewFrame = x11::observeViewFrame,
    .flushBuffer = x11::flushBuffer,
    .copyToPixmap = x11::copyToPixmap,
    .bufferAge = x11::bufferAge,
    .flushApplication = x11::flushApplication,
    .setSwapInterval = x11::setSwapInterval,
    .saveBinding = x11::saveBinding,
    .restoreBinding = x11::restoreBinding,
    .createPixelBuffer = x11::createPixelBuffer,
    .createPixmapBuffer = x11::createPixmapBuffer,
    .pixmapDepth = x11::pixmapDepth,
    .pixelBufferSize = x11::pixelBufferSize,
    .releasePixelBuffer = x11::releasePixelBuffer,
    .viewSize = x11::viewSize,
    .viewTitle = x11::viewTitle,
};

} // namespace host::platform
