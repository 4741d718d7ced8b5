// SPDX-License-Identifier: MIT
#include "platform/foundation/values/Assertions.h"

InternalInconsistency::InternalInconsistency(const QString& source, int line, const QString& description)
    : std::logic_error(description.toStdString())
    , m_source(source)
    , m_line(line)
    , m_description(description) {}

QString InternalInconsistency::logLine() const {
    return QStringLiteral("*** Assertion failure in %1:%2: %3").arg(m_source).arg(m_line).arg(m_description);
}
