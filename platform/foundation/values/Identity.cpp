// SPDX-License-Identifier: MIT
#include "platform/foundation/values/Identity.h"

#include <QUuid>

#include <algorithm>

Identity Identity::brandNew() {
    const QByteArray uuid = QUuid::createUuid().toRfc4122();
    Identity identity;
    std::copy_n(uuid.begin(), kSize, identity.m_bytes.begin());
    return identity;
}

std::optional<Identity> Identity::fromBytes(const QByteArray& bytes) {
    if (bytes.size() != qsizetype(kSize))
        return std::nullopt;
    Identity identity;
    std::copy_n(bytes.begin(), kSize, identity.m_bytes.begin());
    return identity;
}

QByteArray Identity::bytes() const {
    return QByteArray(reinterpret_cast<const char*>(m_bytes.data()), kSize);
}

QString Identity::text() const {
    const QByteArray hex = bytes().toHex();
    return u'<' + QLatin1String(hex.first(kSize)) + u' ' + QLatin1String(hex.last(kSize)) + u'>';
}
