// SPDX-License-Identifier: MIT
#include "platform/foundation/PropertyListXmlReader.h"

#include "platform/foundation/PropertyList.h"
#include "platform/foundation/PropertyListXml.h"

#include <algorithm>

namespace {

// In these an ASCII character is one byte, or one byte among zeros, which is what declaresEntities() counts
// on.
bool isKnownEncoding(QStringView name) {
    constexpr std::array kNames = {u"",       u"UTF-8",      u"UTF8",   u"UTF-16",   u"UTF-16LE", u"UTF-16BE",
                                   u"UTF-32", u"ISO-8859-1", u"LATIN1", u"US-ASCII", u"ASCII"};
    return std::ranges::any_of(
        kNames, [&](QStringView known) { return name.compare(known, Qt::CaseInsensitive) == 0; });
}

// Walks over what stands before the first element without understanding it, and tells whether a document type
// with declarations of its own is there. Declared entities are the way to make a small file large, or to read
// other files; a property list has no use for them, so none is ever parsed.
class Prolog {
public:
    explicit Prolog(const QByteArray& bytes)
        : m_bytes(bytes) {}

    bool hasDeclarations() {
        while (skipTo('<')) {
            const int next = take();
            if (next == '?') {
                skipPast("?>");
            } else if (next == '!') {
                if (take() == '-') {
                    take();
                    skipPast("-->");
                } else if (declarationsInDoctype()) {
                    return true;
                }
            } else {
                return false;
            }
        }
        return false;
    }

private:
    // The next character, without the zeros that wide encodings put between; -1 at the end.
    int take() {
        while (m_at < m_bytes.size()) {
            if (const char character = m_bytes[m_at++])
                return static_cast<unsigned char>(character);
        }
        return -1;
    }

    bool skipTo(char wanted) {
        for (int character = take(); character >= 0; character = take()) {
            if (character == wanted)
                return true;
        }
        return false;
    }

    // `end` has no repetition in it but its first character's.
    void skipPast(QByteArrayView end) {
        qsizetype matched = 0;
        for (int character = take(); character >= 0 && matched < end.size(); character = take()) {
            if (character == end[matched])
                ++matched;
            else if (!(character == end[0] && matched == end.size() - 1))
                matched = character == end[0] ? 1 : 0;
            if (matched == end.size())
                return;
        }
    }

    bool declarationsInDoctype() {
        int quote = 0;
        for (int character = take(); character >= 0; character = take()) {
            if (quote) {
                if (character == quote)
                    quote = 0;
            } else if (character == '\'' || character == '"') {
                quote = character;
            } else if (character == '[') {
                return true;
            } else if (character == '>') {
                return false;
            }
        }
        return false;
    }

    const QByteArray& m_bytes;
    qsizetype m_at = 0;
};

} // namespace

PropertyListXmlReader::PropertyListXmlReader(const QByteArray& bytes)
    : m_bytes(bytes)
    , m_reader(bytes) {
    m_reader.setNamespaceProcessing(false);
}

Result<PropertyListValue> PropertyListXmlReader::read() {
    if (Prolog(m_bytes).hasDeclarations())
        return Failure{Failure::Kind::Damaged,
                       QStringLiteral("line 1: a document type with declarations of its own is refused")};
    while (!m_reader.atEnd() && m_damage.isEmpty())
        token(m_reader.readNext());
    if (!m_damage.isEmpty() || m_reader.hasError())
        return failure();
    PropertyListValue value = m_builder.take();
    if (value.isAbsent()) {
        damaged(QStringLiteral("the property list is empty"));
        return failure();
    }
    return value;
}

void PropertyListXmlReader::token(QXmlStreamReader::TokenType type) {
    switch (type) {
    case QXmlStreamReader::StartDocument:
        if (!isKnownEncoding(m_reader.documentEncoding()))
            damaged(QStringLiteral("the encoding %1 is not known").arg(m_reader.documentEncoding()));
        break;
    case QXmlStreamReader::DTD:
        if (!m_reader.entityDeclarations().isEmpty())
            damaged(QStringLiteral("entity declarations are refused"));
        break;
    case QXmlStreamReader::StartElement:
        startElement();
        break;
    case QXmlStreamReader::EndElement:
        endElement();
        break;
    case QXmlStreamReader::Characters:
        if (!m_reader.isWhitespace())
            damaged(QStringLiteral("text between the elements"));
        break;
    case QXmlStreamReader::EntityReference:
        damaged(QStringLiteral("an unknown entity"));
        break;
    default:
        break;
    }
}

void PropertyListXmlReader::startElement() {
    const QStringView name = m_reader.name();
    if (name == u"plist") {
        if (m_insidePlist || m_hasValue || !m_levels.empty())
            damaged(QStringLiteral("a property list inside the property list"));
        m_insidePlist = true;
    } else if (name == u"key") {
        key();
    } else if (admitValue(name)) {
        if (name == u"dict" || name == u"array")
            container(name == u"dict");
        else
            scalar(name);
    }
}

// Only containers and the outermost element end here: those that hold text are read to their end at once.
void PropertyListXmlReader::endElement() {
    if (m_levels.empty())
        return;
    const Level level = m_levels.back();
    m_levels.pop_back();
    if (level.hasKey)
        damaged(QStringLiteral("a key without a value"));
    else if (level.isDictionary)
        m_builder.endDictionary();
    else
        m_builder.endArray();
}

bool PropertyListXmlReader::admitValue(QStringView name) {
    if (m_levels.empty()) {
        if (m_hasValue)
            damaged(QStringLiteral("more than one value"));
        m_hasValue = true;
    } else if (m_levels.back().isDictionary) {
        if (!m_levels.back().hasKey)
            damaged(QStringLiteral("<%1> without a key").arg(name));
        m_levels.back().hasKey = false;
    }
    return m_damage.isEmpty();
}

void PropertyListXmlReader::container(bool isDictionary) {
    if (m_levels.size() == PropertyList::kDepthLimit) {
        damaged(QStringLiteral("nested deeper than %1 levels").arg(PropertyList::kDepthLimit));
        return;
    }
    m_levels.push_back({isDictionary, false});
    if (isDictionary)
        m_builder.beginDictionary();
    else
        m_builder.beginArray();
}

void PropertyListXmlReader::key() {
    if (m_levels.empty() || !m_levels.back().isDictionary || m_levels.back().hasKey) {
        damaged(QStringLiteral("a key where none belongs"));
        return;
    }
    m_levels.back().hasKey = true;
    m_builder.key(shared(elementText()));
}

void PropertyListXmlReader::scalar(QStringView name) {
    // The name does not outlive the reading of the text.
    const PropertyListXml::Scalar* known = PropertyListXml::scalar(name);
    if (!known) {
        damaged(QStringLiteral("<%1> is no kind of value").arg(name));
        return;
    }
    const QString text = elementText();
    if (!m_damage.isEmpty() || m_reader.hasError())
        return;
    const PropertyListValue value = known->parse(text);
    if (value.isAbsent())
        // Not what it says instead: the log is told of this, and it may be somebody's title.
        damaged(QStringLiteral("what stands in <%1> is none").arg(known->name));
    else
        m_builder.value(value);
}

QString PropertyListXmlReader::elementText() {
    QString text;
    for (;;) {
        switch (m_reader.readNext()) {
        case QXmlStreamReader::Characters:
            text.append(m_reader.text());
            break;
        case QXmlStreamReader::EndElement:
            return text;
        case QXmlStreamReader::Comment:
        case QXmlStreamReader::ProcessingInstruction:
            break;
        case QXmlStreamReader::StartElement:
            damaged(QStringLiteral("<%1> inside of text").arg(m_reader.name()));
            return {};
        case QXmlStreamReader::EntityReference:
            damaged(QStringLiteral("an unknown entity"));
            return {};
        default:
            return {};
        }
    }
}

const QString& PropertyListXmlReader::shared(QString key) {
    const std::size_t slot =
        key.isEmpty() ? 0 : std::size_t(key.size() * 7 + key.front().unicode() + key.back().unicode());
    QString& kept = m_keys[slot % m_keys.size()];
    if (kept != key)
        kept = std::move(key);
    return kept;
}

void PropertyListXmlReader::damaged(const QString& what) {
    if (!m_damage.isEmpty())
        return;
    m_damage = what;
    m_damagedLine = m_reader.lineNumber();
}

Failure PropertyListXmlReader::failure() const {
    const bool ours = !m_damage.isEmpty();
    return {Failure::Kind::Damaged, QStringLiteral("line %1: %2")
                                        .arg(ours ? m_damagedLine : m_reader.lineNumber())
                                        .arg(ours ? m_damage : m_reader.errorString())};
}
