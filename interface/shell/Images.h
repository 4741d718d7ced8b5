// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

// The program's own pictures, by name. Drawn from their outlines when first needed, at the size and scale
// needed. A name may end in ".png" or ".jpg"; that says nothing about how the picture is kept.
namespace Images {

// A picture as it is, such as "ToolbarStart". Nothing is drawn for a name that has no picture.
QIcon named(const QString& name);
// The program's icon, with the badge of a running timer over it if `isRecording`.
QIcon application(bool isRecording);
// The size at which a picture is meant to be seen, in logical pixels; empty for a name that has no picture.
QSize size(const QString& name);
// The picture, stretched to that size on each axis by itself, for a device on which a logical pixel is `scale` pixels
// wide. Transparent for a name that has no picture.
QPixmap stretched(const QString& name, const QSize& size, qreal scale);

} // namespace Images
