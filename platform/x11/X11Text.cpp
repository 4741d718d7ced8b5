// SPDX-License-Identifier: MIT
#include "platform/x11/X11Text.h"

#include "platform/foundation/text/CleanText.h"

namespace {

constexpr char kEscape = '\x1b';

// Compound text switches character sets by escape sequences. Segments in UTF-8 and Latin-1 are read, and
// ASCII in others; the rest becomes U+FFFD, because nobody uses those sets any more.
class CompoundText {
public:
    explicit CompoundText(QByteArrayView bytes)
        : m_rest(bytes) {}

    QString read() {
        while (!m_rest.isEmpty()) {
            if (m_rest.front() == kEscape)
                readEscape();
            else
                readRun(m_rest.first(runLength()));
        }
        return m_text;
    }

private:
    qsizetype runLength() const {
        const qsizetype escape = m_rest.indexOf(kEscape);
        return escape < 0 ? m_rest.size() : escape;
    }

    void readRun(QByteArrayView run) {
        if (m_isUtf8) {
            m_text += QString::fromUtf8(run);
        } else {
            for (const char byte : run) {
                const bool isKnown = m_isLatin1 || uchar(byte) < 0x80;
                m_text += isKnown ? QChar::fromLatin1(byte) : QChar(QChar::ReplacementCharacter);
            }
        }
        m_rest = m_rest.sliced(run.size());
    }

    // An escape, intermediate bytes (0x20 to 0x2F) and a final byte.
    void readEscape() {
        qsizetype length = 1;
        while (length < m_rest.size() && m_rest[length] >= 0x20 && m_rest[length] <= 0x2F)
            ++length;
        length = qMin(length + 1, m_rest.size());
        const QByteArrayView sequence = m_rest.sliced(1, length - 1);
        if (sequence == QByteArrayView("%G"))
            m_isUtf8 = true;
        else if (sequence == QByteArrayView("%@"))
            m_isUtf8 = false;
        else if (sequence.startsWith(QByteArrayView("-")))
            m_isLatin1 = sequence == QByteArrayView("-A");
        else if (sequence.startsWith(QByteArrayView("$)")))
            m_isLatin1 = false;
        m_rest = m_rest.sliced(length);
    }

    QByteArrayView m_rest;
    QString m_text;
    bool m_isUtf8 = false;
    bool m_isLatin1 = true;
};

} // namespace

QString x11Text(QByteArrayView bytes, X11Encoding encoding) {
    while (!bytes.isEmpty() && bytes.back() == '\0')
        bytes.chop(1);
    switch (encoding) {
    case X11Encoding::Utf8:
        return cleanTextFromUtf8(bytes);
    case X11Encoding::Latin1:
        return cleanText(QString::fromLatin1(bytes.first(qMin(bytes.size(), kLongestText))));
    case X11Encoding::CompoundText:
        return cleanText(CompoundText(bytes).read());
    }
    return {};
}
