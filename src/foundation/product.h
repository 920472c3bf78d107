// The names of the product.
#pragma once

// Also names the section of the preferences file: settings are not shared between versions.
inline constexpr char productName[] = "Zelvane";
inline constexpr char productVersion[] = "6.31";
inline constexpr char productBuild[] = "4.7@2031846";
