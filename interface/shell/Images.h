// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

// The program's own pictures, by name. Drawn from their outlines when first needed, at the size and scale
// needed.
namespace Images {

// A picture as it is, such as "ToolbarStart". Nothing is drawn for a name that has no picture.
QIcon named(const QString& name);
// The program's icon, with the badge of a running timer over it if `isRecording`.
QIcon application(bool isRecording);

} // namespace Images
