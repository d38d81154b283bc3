// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The folder of this process for cover pictures, inside the temporary folder and readable by its
/// user alone. Thread: any.
namespace CoverFolder {

/// A new name ending in ".jpg"; the folder is made when it is first asked for, and those of
/// processes that were killed are removed then. Empty when it can't be made.
[[nodiscard]] QString uniqueImagePath();
/// Removes the folder and what is in it.
void remove();

}
