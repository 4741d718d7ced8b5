// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// What of a window's title is the document's name: the title without the name of its program at the end
// ("Offer.odt - Writer", "News — Mozilla Firefox" of "Firefox"). The whole title if that is not how it ends; the
// program's name if it says nothing else (" - Firefox").
QString shownTitle(const QString& title, const QString& program);
