// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QString>

// How the bytes of a text property are meant.
enum class X11Encoding { Latin1, Utf8, CompoundText };

// The text of a property, clean; empty when there is nothing in it.
QString x11Text(QByteArrayView bytes, X11Encoding encoding);
