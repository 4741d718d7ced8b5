// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

class QTextDocument;

// A document of paragraphs and tables as Rich Text Format: text, bold and table cells. Characters beyond ASCII are spelled
// as numbers, so that every reader understands them.
QByteArray rtf(const QTextDocument& document);
