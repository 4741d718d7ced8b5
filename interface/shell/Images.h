// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

// The program's own pictures, by name. They are vector pictures, drawn when first needed at the size and
// scale needed. A name may end in ".png" or ".jpg", whatever the file's real format.
namespace Images {

// A picture such as "ToolbarStart". Draws nothing if no picture has this name.
QIcon named(const QString& name);
// The same in the colour of the texts of buttons, whatever the palette is, fainter while disabled. For commands, beside
// whose texts several colours would be restless.
QIcon symbol(const QString& name);
// The program's icon, with the badge of a running timer over it if `isRecording`.
QIcon application(bool isRecording);
// The intended size of a picture in logical pixels; empty if no picture has this name.
QSize size(const QString& name);
// The picture, stretched to this size, each axis on its own, for a device with `scale` pixels in a logical
// pixel. Transparent if no picture has this name.
QPixmap stretched(const QString& name, const QSize& size, qreal scale);

} // namespace Images
