// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/propertylists/PropertyListValue.h"

#include <QSet>
#include <QString>

// The entry of a rule's record: whether each title of the application's windows gets a row of its own. Absent: no.
inline const QString kRuleRowForEachTitle = QStringLiteral("RowForEachTitle");

// Whose windows get a row for each title that they have had. All others have one row for a window, which is called
// like its latest title.
class TitleRows {
public:
    // `forAll`: all applications, whatever their rules say. Records of other types and rules that are not active are
    // left out.
    void read(const PropertyListValue& ruleset, bool forAll);

    bool areFor(const QString& application) const {
        return m_areForAll || m_applications.contains(application);
    }

private:
    bool m_areForAll = false;
    QSet<QString> m_applications;
};
