// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// The text for `key` in the user's language. The key is the English text, which is shown when a language
// lacks it. Keys that are no English text ("%ld hour-2") have one in the English table.
QString localized(const char* key);
