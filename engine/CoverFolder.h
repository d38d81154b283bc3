// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// This process's folder for cover pictures, readable by its user alone. Thread: any.
namespace CoverFolder {

/// A new name ending in ".jpg"; empty when the folder can't be made. Folders of processes that were
/// killed are removed first.
[[nodiscard]] QString uniqueImagePath();
void remove();

}
