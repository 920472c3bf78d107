/*
 * The contract between Zelvane and an OpenGL ES back end.
 *
 * A back end is a shared library, libGLESv1_CM.so.1 for ES 1 or libGLESv2.so.2 for ES 2 and 3, beside libEGL.so.1 or
 * in $KZRTRACE_LIB_PATH. It exports the first five functions below, may export the two that make EGL images, and may
 * call the entries below them and any EGL entry.
 *
 * Conventions: a null pointer is never passed where nothing is said about it. Whoever makes an object deletes it.
 * No function may throw. Functions run on the application's thread unless told otherwise.
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

/* Attributes of a context, 48 bytes in the machine's byte order (little-endian). Read only for back ends. */
typedef struct ContextAttribs {
    uint64_t contextHandle;    /* the EGLContext */
    int32_t requestedMajor;    /* EGL_CONTEXT_CLIENT_VERSION as the application gave it */
    int32_t esMajor;           /* the major version that the context really gets */
    int32_t esMinor;           /* the minor version that the context really gets */
    int32_t contextFlags;      /* EGL_CONTEXT_FLAGS_KHR */
    int32_t profileMask;       /* EGL_CONTEXT_OPENGL_PROFILE_MASK_KHR */
    int32_t resetStrategy;     /* EGL_CONTEXT_OPENGL_RESET_NOTIFICATION_STRATEGY */
    int32_t priority;          /* EGL_CONTEXT_PRIORITY_LEVEL_TWG, 0x3102 (medium) by default */
    uint8_t legacyClient;      /* 1 for an ES 1 context */
    uint8_t surfaceless;       /* 1 while the context is being bound without surfaces of the application */
    uint8_t strictContextMode; /* 1 when strict mode was on at creation */
    uint8_t noError;           /* 1 when the application asked for no errors */
    uint8_t srgbFramebuffer;   /* 1 once a surface with the sRGB colour space was bound */
    uint8_t reserved[7];
} ContextAttribs;

/* An opaque back-end context; null means none. */
typedef void *zvEsContext;

/* ---- What a back end exports ---- */

/*
 * Makes the back-end context. Called at the first bind of a context, with its host context current.
 * displayAndHandle: the display record and the context handle. settings: for the zvSettings functions, valid for the
 * life of the process. shareEsContext: the context to share objects with; null without one, and when it is deleted
 * already.
 * Returns null on failure; the bind then fails with EGL_BAD_ALLOC and a later bind tries again.
 */
ZV_EXPORT zvEsContext zvCreateEsContext(const ContextAttribs *attribs, const uint64_t displayAndHandle[2],
                                        void *settings, zvEsContext shareEsContext);

/* Tells changed attributes. Called at every later bind, with the host context current. */
ZV_EXPORT void zvSetEsContextAttribs(zvEsContext esContext, const ContextAttribs *attribs);

/* Deletes the context. Its host context is gone already and need not be current. */
ZV_EXPORT void zvDeleteEsContext(zvEsContext esContext);

/*
 * The function of this name for the calling thread's current context, or null when the back end has none.
 * Asked once for a name and context. The pointer must stay good as long as the library is loaded.
 */
ZV_EXPORT void *zvGetExtProcAddress(const char *name);

/*
 * Switches the render mode. mode: length bytes, of which the first is 1 for on and 0 for off; length is 1.
 * Called on a thread of the library's own, beside running GL calls, also for contexts that were never bound.
 */
ZV_EXPORT void zvSetRenderMode(const uint8_t *mode, size_t length);

/* What an EGL image of a desktop program is to be made of, as eglCreateImage is given it. */
typedef struct zvImageSource {
    uint32_t target; /* EGL_GL_TEXTURE_2D, a face of EGL_GL_TEXTURE_CUBE_MAP_POSITIVE_X and on, EGL_GL_RENDERBUFFER */
    uint32_t name;   /* the application's */
    int32_t level;   /* of a texture; not negative */
    uint64_t number; /* of the image; no other of the process has had it */
} zvImageSource;

/* The storage of an EGL image, known to all contexts that share with the one that it was made in. */
typedef struct zvImage {
    void *owner;          /* the back end's own, for zvDropImage; null when hostTexture is the source itself */
    uint64_t number;      /* the source's */
    uint32_t hostTexture; /* of GL_TEXTURE_2D; with an owner it is immutable and has one level */
    uint32_t hostFormat;  /* the internal format on the host */
    uint32_t format;      /* what the application calls it */
    int32_t swizzle[4];   /* what that format needs on the host, in the order of GL_TEXTURE_SWIZZLE_R and on */
} zvImage;

/*
 * Makes the storage of an image out of a texture or a renderbuffer, which goes on sharing it. Called with a host
 * context current that shares objects with esContext's; esContext is the current one for renderbuffers. Optional.
 * Returns EGL_SUCCESS with *image filled, or an EGL error.
 */
ZV_EXPORT int32_t zvMakeImage(zvEsContext esContext, const zvImageSource *source, zvImage *image);

/* Lets go of a storage with an owner; textures that were made of it keep theirs. Any thread. There with zvMakeImage. */
ZV_EXPORT void zvDropImage(const zvImage *image);

/* What is current on one thread. The library writes it at each bind and unbind; read only for back ends. */
typedef struct zvThread {
    zvEsContext es1Context; /* the current context of the ES 1 back end; null when nothing or another kind is current */
    zvEsContext esContext;  /* the same of the ES 2 and 3 back end */
} zvThread;

/* ---- What Zelvane exports for back ends ---- */

/*
 * The calling thread's record, for back ends that look their context up at each call: a back end keeps the pointer in a
 * thread-local variable of its own when it is called at a bind. Never null; good until the thread ends. Any thread.
 */
ZV_EXPORT const zvThread *zvCurrentThread(void);

/* The back-end context that is current on the calling thread, or null. Leaves the EGL error alone. Any thread. */
ZV_EXPORT zvEsContext zvCurrentEsContext(void);

/*
 * The storage behind the handle of an EGL image, for desktop programs. Returns 1 with *image filled; 0 for what is no
 * image of the current display; -1 for one whose contexts do not share with the thread's. Any thread.
 */
ZV_EXPORT int zvFindImage(const void *handle, zvImage *image);

/* How many swaps have succeeded in the process. Must not be called before the first EGL call. Any thread. */
ZV_EXPORT uint64_t zvCurrentFrameNumber(void);

/*
 * Posts a copy of the record to the GUI that is attached to the process, with the number of the current frame written
 * into its frameStamp. Types 2 to 10 and 14 to 20 travel; ZV_LINK_STOP ends the link, and the others are dropped. Waits
 * for no GUI: one that does not read costs memory, and without one the record vanishes. Must not be called before the
 * first EGL call. Any thread.
 */
ZV_EXPORT void zvPostFrameMessage(zvMessage message);

/*
 * 1 while a GUI is attached to the process, otherwise 0. A GUI attaches at the first EGL call or never. Costs a few
 * loads, so that a back end can ask before it makes a record. Must not be called before the first EGL call. Any thread.
 */
ZV_EXPORT int zvGuiIsAttached(void);

/*
 * Name of the device profile in force; the empty text without one. settings: as given to zvCreateEsContext. The text
 * lives as long as the process. Null settings give null. Any thread.
 */
ZV_EXPORT const char *zvSettingsProfileName(const void *settings);

/* Directory of the profile files; the empty text without one. Otherwise as zvSettingsProfileName. */
ZV_EXPORT const char *zvSettingsProfilesDirectory(const void *settings);

/*
 * XML text of the device profile in force, whose es blocks hold the extensions and limits that the device answers with;
 * the empty text without a profile. Otherwise as zvSettingsProfileName.
 */
ZV_EXPORT const char *zvSettingsProfileText(const void *settings);

/*
 * What eglGetProcAddress gives for "zvRecordedFunction" while the process keeps a journal, and null otherwise: puts a
 * function that records before one of the back end's, for names that programs link from it. name: of the GL function,
 * ended by a 0. Returns what to call in its place, of the same type, or null for a null function. Any thread.
 */
typedef void *(*zvRecordedFunctionType)(const char *name, void *function);

#ifdef __cplusplus
}
#endif

#endif
