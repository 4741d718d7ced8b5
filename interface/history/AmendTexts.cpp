// SPDX-License-Identifier: MIT
#include "interface/history/AmendTexts.h"

#include "Classes/common/ShownNames.h"
#include "interface/shell/PlainText.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QDateTime>
#include <QLocale>

namespace {

void translate(std::vector<RangeAnswer::Entry>& programs) {
    for (RangeAnswer::Entry& program : programs)
        program.name = ShownNames::of(program.name);
}

} // namespace

namespace AmendTexts {

QString of(const RangeAnswer::Piece& piece) {
    if (!piece.amended)
        return {};
    const QString when =
        QLocale().toString(QDateTime::fromMSecsSinceEpoch(piece.amended->made), QLocale::ShortFormat);
    if (!piece.amended->wasWork)
        return localized("Booked by hand on %1").replace(QLatin1String("%1"), when);
    if (piece.amended->titles.isEmpty())
        return localized("Given to its project by hand on %1").replace(QLatin1String("%1"), when);
    const QString before =
        PlainText::cut(piece.amended->titles.join(QStringLiteral(", ")), PlainText::kLongestEntry);
    return localized("Named by hand on %1, before: %2")
        .replace(QLatin1String("%1"), when)
        .replace(QLatin1String("%2"), before);
}

void translate(RangeAnswer& answer) {
    ::translate(answer.programs);
    for (RangeAnswer::Entry& project : answer.projects)
        ::translate(project.parts);
    for (RangeAnswer::Piece& piece : answer.pieces)
        piece.program = ShownNames::of(piece.program);
    for (RangeAnswer::Bar& bar : answer.bars)
        ::translate(bar.programs);
}

} // namespace AmendTexts
