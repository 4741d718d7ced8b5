// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/propertylists/PropertyListLimits.h"
#include "platform/foundation/propertylists/PropertyListWriter.h"
#include "platform/foundation/values/Result.h"

#include <QByteArray>
#include <QXmlStreamReader>

#include <array>
#include <vector>

// Reads the XML form. It does not recurse, so that no nesting can use up the stack. Use it once.
class PropertyListXmlReader {
public:
    // `bytes` must outlive the reader.
    explicit PropertyListXmlReader(const QByteArray& bytes,
                                   std::size_t mostValues = PropertyList::kValueLimit);

    // As PropertyList::read.
    Result<PropertyListValue> read();

private:
    struct Level {
        bool isDictionary;
        bool hasKey;
    };

    void token(QXmlStreamReader::TokenType type);
    void startElement();
    void endElement();
    // Whether a value is allowed here; notes the damage if not.
    bool admitValue(QStringView name);
    void container(bool isDictionary);
    void key();
    void scalar(QStringView name);
    // The text of an element that holds only text.
    QString elementText();
    // The only copy of a key, shared by a hundred thousand records.
    const QString& shared(QString key);
    void damaged(const QString& what);
    Failure failure() const;

    bool isWide() const { return !m_narrowed.isNull(); }

    // The bytes in UTF-8, if the file has a wide encoding.
    const QByteArray m_narrowed;
    const QByteArray& m_bytes;
    const std::size_t m_mostValues;
    QXmlStreamReader m_reader;
    PropertyListBuilder m_builder;
    std::vector<Level> m_levels;
    bool m_insidePlist = false;
    bool m_hasValue = false;
    QString m_damage;
    qint64 m_damagedLine = 0;
    std::array<QString, 64> m_keys;
};
