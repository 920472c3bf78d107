// What the product calls itself.
#pragma once

// Names the section of the preferences file too: settings do not carry over between versions.
inline constexpr char productName[] = "Zelvane";
inline constexpr char productVersion[] = "6.31";
inline constexpr char productBuild[] = "4.7@2031846";
