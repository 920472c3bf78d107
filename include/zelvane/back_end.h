/*
 * The contract between Zelvane and an OpenGL ES back end.
 *
 * A back end is a shared library, libGLESv1_CM.so.1 for ES 1 or libGLESv2.so.2 for ES 2 and 3, next to libEGL.so.1 or
 * in $KZRTRACE_LIB_PATH. It exports the first five functions below and may export the two functions for EGL images. It
 * may call the functions that Zelvane exports and any EGL function.
 *
 * Conventions: pointers are not null unless stated otherwise. The side that creates an object deletes it. No function
 * may throw. Functions are called on the application's thread unless stated otherwise.
 */
#ifndef ZELVANE_BACK_END_H
#define ZELVANE_BACK_END_H

#include <stddef.h>
#include <stdint.h>

#include "zelvane/messages.h"

#ifdef __cplusplus
extern "C" {
#endif

#if defined(__GNUC__)
#define ZV_EXPORT __attribute__((visibility("default")))
#else
#define ZV_EXPORT
#endif

/* Attributes of a context, 48 bytes in the machine's byte order (little-endian). Read-only for back ends. */
typedef struct ContextAttribs {
    uint64_t contextHandle;    /* the EGLContext */
    int32_t requestedMajor;    /* EGL_CONTEXT_CLIENT_VERSION as specified by the application */
    int32_t esMajor;           /* the major version of the created context */
    int32_t esMinor;           /* the minor version of the created context */
    int32_t contextFlags;      /* EGL_CONTEXT_FLAGS_KHR */
    int32_t profileMask;       /* EGL_CONTEXT_OPENGL_PROFILE_MASK_KHR */
    int32_t resetStrategy;     /* EGL_CONTEXT_OPENGL_RESET_NOTIFICATION_STRATEGY */
    int32_t priority;          /* EGL_CONTEXT_PRIORITY_LEVEL_TWG, 0x3102 (medium) by default */
    uint8_t legacyClient;      /* 1 for an ES 1 context */
    uint8_t surfaceless;       /* 1 while the context is being bound without surfaces of the application */
    uint8_t strictContextMode; /* 1 when strict mode was on at creation */
    uint8_t noError;           /* 1 when the application requested a context without errors */
    uint8_t srgbFramebuffer;   /* 1 once a surface with the sRGB colour space has been bound */
    uint8_t reserved[7];
} ContextAttribs;

/* An opaque back-end context; null means none. */
typedef void *zvEsContext;

/* ---- Functions that a back end exports ---- */

/*
 * Creates the back-end context. Called at the first bind of a context, with its host context current.
 * displayAndHandle: the display record and the context handle. settings: for the zvSettings functions, valid for the
 * life of the process. shareEsContext: the context to share objects with; null if there is none or it has been deleted.
 * Returns null on failure; the bind then fails with EGL_BAD_ALLOC and a later bind tries again.
 */
ZV_EXPORT zvEsContext zvCreateEsContext(const ContextAttribs *attribs, const uint64_t displayAndHandle[2],
                                        void *settings, zvEsContext shareEsContext);

/* Passes the current attributes. Called at every later bind, with the host context current. */
ZV_EXPORT void zvSetEsContextAttribs(zvEsContext esContext, const ContextAttribs *attribs);

/* Deletes the context. Its host context has already been destroyed and need not be current. */
ZV_EXPORT void zvDeleteEsContext(zvEsContext esContext);

/*
 * Returns the function of this name for the calling thread's current context, or null if the back end has none.
 * Called once per name and context. The pointer must remain valid as long as the library is loaded.
 */
ZV_EXPORT void *zvGetExtProcAddress(const char *name);

/*
 * Switches the render mode. mode: length bytes, of which the first is 1 for on and 0 for off; length is 1.
 * Called on one of the library's own threads, concurrently with GL calls, also for contexts that were never bound.
 */
ZV_EXPORT void zvSetRenderMode(const uint8_t *mode, size_t length);

/* The source of an EGL image of a desktop program, as passed to eglCreateImage. */
typedef struct zvImageSource {
    uint32_t target; /* EGL_GL_TEXTURE_2D, EGL_GL_TEXTURE_CUBE_MAP_POSITIVE_X to ..._NEGATIVE_Z, EGL_GL_RENDERBUFFER */
    uint32_t name;   /* the application's name of the source object */
    int32_t level;   /* of a texture; not negative */
    uint64_t number; /* of the image; unique in the process and never reused */
} zvImageSource;

/* The storage of an EGL image, accessible to all contexts that share with the one that it was created in. */
typedef struct zvImage {
    void *owner;          /* defined by the back end, for zvDropImage; null if hostTexture is the source itself */
    uint64_t number;      /* the source's */
    uint32_t hostTexture; /* of GL_TEXTURE_2D; with an owner it is immutable and has one level */
    uint32_t hostFormat;  /* the internal format on the host */
    uint32_t format;      /* the internal format that the application specified */
    int32_t swizzle[4];   /* required on the host for that format, in the order GL_TEXTURE_SWIZZLE_R, _G, _B, _A */
} zvImage;

/*
 * Creates the storage of an image from a texture or a renderbuffer, which then shares it. Called with a host context
 * current that shares objects with esContext's; for renderbuffers esContext is the current context. Optional.
 * Returns EGL_SUCCESS with *image filled, or an EGL error.
 */
ZV_EXPORT int32_t zvMakeImage(zvEsContext esContext, const zvImageSource *source, zvImage *image);

/*
 * Releases a storage with an owner; textures that were created from it keep theirs. Any thread. Required with
 * zvMakeImage.
 */
ZV_EXPORT void zvDropImage(const zvImage *image);

/* The current contexts of one thread. The library writes it at each bind and unbind; read-only for back ends. */
typedef struct zvThread {
    zvEsContext es1Context; /* the current context of the ES 1 back end; null if there is none or of another back end */
    zvEsContext esContext;  /* the same for the ES 2 and 3 back end */
} zvThread;

/* ---- Functions that Zelvane exports for back ends ---- */

/*
 * Returns the calling thread's record, for back ends that need their context at each call: a back end stores the
 * pointer in its own thread-local variable when it is called at a bind. Never null; valid until the thread ends. Any
 * thread.
 */
ZV_EXPORT const zvThread *zvCurrentThread(void);

/* Returns the calling thread's current back-end context, or null. Does not change the EGL error. Any thread. */
ZV_EXPORT zvEsContext zvCurrentEsContext(void);

/*
 * Finds the storage of an EGL image by its handle, for desktop programs. Returns 1 with *image filled; 0 if the handle
 * is not an image of the current display; -1 if the image's contexts do not share with the thread's. Any thread.
 */
ZV_EXPORT int zvFindImage(const void *handle, zvImage *image);

/* Returns the number of successful swaps in the process. Must not be called before the first EGL call. Any thread. */
ZV_EXPORT uint64_t zvCurrentFrameNumber(void);

/*
 * Posts a copy of the record to the GUI that is attached to the process, with the number of the current frame written
 * into its frameStamp. Types 2 to 10 and 14 to 20 are sent; ZV_LINK_STOP ends the link; all others are dropped. Does
 * not wait for the GUI: records queue in memory if it does not read, and are dropped if there is none. Must not be
 * called before the first EGL call. Any thread.
 */
ZV_EXPORT void zvPostFrameMessage(zvMessage message);

/*
 * Returns 1 while a GUI is attached to the process, otherwise 0. A GUI attaches at the first EGL call or never. Costs a
 * few loads, so that a back end can check it before it builds a record. Must not be called before the first EGL call.
 * Any thread.
 */
ZV_EXPORT int zvGuiIsAttached(void);

/*
 * Returns the name of the current device profile; an empty string if there is none. settings: as passed to
 * zvCreateEsContext. The string lives as long as the process. Returns null for null settings. Any thread.
 */
ZV_EXPORT const char *zvSettingsProfileName(const void *settings);

/* Returns the directory of the profile files; an empty string if none is set. Otherwise as zvSettingsProfileName. */
ZV_EXPORT const char *zvSettingsProfilesDirectory(const void *settings);

/*
 * Returns the XML text of the current device profile, whose es blocks contain the extensions and limits of the device;
 * an empty string if there is no profile. Otherwise as zvSettingsProfileName.
 */
ZV_EXPORT const char *zvSettingsProfileText(const void *settings);

/*
 * The type of the function that eglGetProcAddress returns for "zvRecordedFunction" while the process writes a journal;
 * otherwise it returns null. The function wraps one of the back end's with a recording function, for names that
 * programs link from the back end. name: the null-terminated name of the GL function. Returns the function to call
 * instead, of the same type, or null for a null function. Any thread.
 */

typedef void *(*zvRecordedFunctionType)(const char *name, void *function);

#ifdef __cplusplus
}
#endif

#endif
