// Enumerants of desktop OpenGL that the ES headers lack. Those and the desktop's headers cannot be included together.
#pragma once

namespace desktop {

constexpr unsigned fill = 0x1B02;
constexpr unsigned line = 0x1B01;
constexpr unsigned quads = 0x0007;
constexpr unsigned framebufferSrgb = 0x8DB9;
constexpr unsigned textureWidth = 0x1000;
constexpr unsigned textureHeight = 0x1001;
constexpr unsigned textureImmutableFormat = 0x912F;
constexpr unsigned textureGenMode = 0x2500;
constexpr unsigned coordinateS = 0x2000;
constexpr unsigned coordinateT = 0x2001;
constexpr unsigned coordinateR = 0x2002;
constexpr unsigned textureGenS = 0x0C60;
constexpr unsigned textureGenT = 0x0C61;
constexpr unsigned textureGenR = 0x0C62;
constexpr unsigned streamDraw = 0x88E0;

// Attribute groups for glPushAttrib.
constexpr unsigned currentBit = 0x00000001;
constexpr unsigned polygonBit = 0x00000008;
constexpr unsigned viewportBit = 0x00000800;
constexpr unsigned transformBit = 0x00001000;
constexpr unsigned enableBit = 0x00002000;

} // namespace desktop
