// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// The text for `key` in the user's language. The key is the English text, and is what is shown where a language has
// none; keys that are no English of their own ("%ld hour-2") have one in the English table.
QString localized(const char* key);
