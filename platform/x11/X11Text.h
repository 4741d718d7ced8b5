// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QString>

// The encoding of a text property.
enum class X11Encoding { Latin1, Utf8, CompoundText };

// The text of a property, cleaned; empty if there is none.
QString x11Text(QByteArrayView bytes, X11Encoding encoding);
