// SPDX-License-Identifier: MIT
#include "platform/foundation/propertylists/PropertyListXmlReader.h"

#include "platform/foundation/propertylists/PropertyListXml.h"

#include <QStringDecoder>

#include <algorithm>

namespace {

bool isOneOf(std::initializer_list<QStringView> names, QStringView name) {
    return std::ranges::any_of(
        names, [&](QStringView known) { return name.compare(known, Qt::CaseInsensitive) == 0; });
}

// The scan below reads only these encodings; in another one, tags could be hidden from it.
bool isEncoding(QStringView name, bool isWide) {
    return isWide ? isOneOf({u"", u"UTF-16", u"UTF-16LE", u"UTF-16BE", u"UTF-32", u"UTF-32LE", u"UTF-32BE"},
                            name)
                  : isOneOf({u"", u"UTF-8", u"UTF8", u"ISO-8859-1", u"LATIN1", u"US-ASCII", u"ASCII"}, name);
}

// For one tag. The only tag of a property list that has any is `<plist version="1.0">`.
constexpr int kMostAttributes = 8;

// Goes over the markup once, without interpreting it, and says what must not be parsed at all. In all
// accepted encodings an ASCII character is one byte.
class MarkupScan {
public:
    explicit MarkupScan(QByteArrayView bytes)
        : m_at(bytes.begin())
        , m_end(bytes.end()) {}

    // Why the file is refused; empty if it is not.
    QString refusal() {
        while (skipPast("<")) {
            if (isNext("?"))
                skipPast("?>");
            else if (isNext("!--"))
                skipPast("-->");
            else if (isNext("![CDATA["))
                skipPast("]]>");
            else if (isNext("!") && hasDeclarations())
                return QStringLiteral("a document type with declarations of its own is refused");
            else if (hasManyAttributes())
                return QStringLiteral("a tag of more than %1 attributes is refused").arg(kMostAttributes);
        }
        return {};
    }

private:
    bool isNext(QByteArrayView text) {
        if (!QByteArrayView(m_at, m_end).startsWith(text))
            return false;
        m_at += text.size();
        return true;
    }

    bool skipPast(QByteArrayView text) {
        m_at = std::search(m_at, m_end, text.begin(), text.end());
        if (m_at == m_end)
            return false;
        m_at += text.size();
        return true;
    }

    // Declared entities can make a small file large or read other files, and no property list needs them.
    // Stops behind the document type.
    bool hasDeclarations() {
        return findInTag([](char character) { return character == '['; });
    }

    // The parser compares each attribute of a tag with all others. Stops behind the tag.
    bool hasManyAttributes() {
        return findInTag(
            [count = 0](char character) mutable { return character == '=' && ++count > kMostAttributes; });
    }

    // Whether a character is found outside of quotes before the tag ends.
    template<class Wanted>
    bool findInTag(Wanted isWanted) {
        char quote = 0;
        for (; m_at != m_end; ++m_at) {
            const char character = *m_at;
            if (quote != 0) {
                if (character == quote)
                    quote = 0;
            } else if (character == '\'' || character == '"') {
                quote = character;
            } else if (character == '>') {
                return false;
            } else if (isWanted(character)) {
                return true;
            }
        }
        return false;
    }

    const char* m_at;
    const char* m_end;
};

// The same text in UTF-8 if its characters have two or four bytes; null if one.
QByteArray narrowed(const QByteArray& bytes) {
    const auto encoding = QStringConverter::encodingForData(bytes, u'<');
    if (!encoding || *encoding == QStringConverter::Utf8)
        return {};
    return QString(QStringDecoder(*encoding).decode(bytes)).toUtf8();
}

} // namespace

PropertyListXmlReader::PropertyListXmlReader(const QByteArray& bytes, std::size_t mostValues)
    : m_narrowed(narrowed(bytes))
    , m_bytes(isWide() ? m_narrowed : bytes)
    , m_mostValues(mostValues) {
    // The converted text is UTF-8, whatever its declaration says.
    if (isWide())
        m_reader.addData(QString::fromUtf8(m_narrowed));
    else
        m_reader.addData(bytes);
    m_reader.setNamespaceProcessing(false);
}

Result<PropertyListValue> PropertyListXmlReader::read() {
    if (const QString refusal = MarkupScan(m_bytes).refusal(); !refusal.isEmpty())
        return Failure{Failure::Kind::Damaged, QStringLiteral("line 1: ") + refusal};
    while (!m_reader.atEnd() && m_damage.isEmpty()) {
        token(m_reader.readNext());
        if (m_builder.count() > m_mostValues)
            damaged(QStringLiteral("more than %1 values").arg(m_mostValues));
    }
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
        if (!isEncoding(m_reader.documentEncoding(), isWide()))
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

// Only containers and the outermost element end here: elements with text are read to their end at once.
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
    // Looked up now: the name becomes invalid when the text is read.
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
        // The text itself is left out: this is logged, and it may be somebody's window title.
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
