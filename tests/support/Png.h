// Pictures of the in-process desktop for a person to look at.
#pragma once

#include <string>

#include "platform/surface.h"

namespace dorvalin {

/// False when the file cannot be written.
bool SavePng(const platform::Surface& surface, const std::string& path);

}  // namespace dorvalin
