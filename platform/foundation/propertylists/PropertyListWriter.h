// SPDX-License-Identifier: MIT
#pragma once

#include "platform/foundation/propertylists/PropertyListValue.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <functional>
#include <memory>

// Takes a property list piece by piece, so that it need not be built as a value first. Pieces must nest
// properly; in a dictionary, a key comes before each value.
class PropertyListSink {
public:
    virtual ~PropertyListSink() = default;

    virtual void beginDictionary() = 0;
    virtual void endDictionary() = 0;
    virtual void beginArray() = 0;
    virtual void endArray() = 0;
    virtual void key(const QString& text) = 0;
    virtual void string(const QString& text) = 0;
    virtual void real(double value) = 0;
    virtual void integer(std::int64_t value) = 0;
    virtual void boolean(bool value) = 0;
    virtual void date(Date value) = 0;
    virtual void data(const QByteArray& bytes) = 0;

    // A whole value at once. An absent one breaks the contract.
    void value(const PropertyListValue& value);
};

// Builds a value from the pieces.
class PropertyListBuilder : public PropertyListSink {
public:
    void beginDictionary() override;
    void endDictionary() override;
    void beginArray() override;
    void endArray() override;
    void key(const QString& text) override;
    void string(const QString& text) override;
    void real(double value) override;
    void integer(std::int64_t value) override;
    void boolean(bool value) override;
    void date(Date value) override;
    void data(const QByteArray& bytes) override;

    // The value; absent until the outermost piece has ended.
    PropertyListValue take();
    // How many values there are so far, including nested ones.
    std::size_t count() const { return m_count; }

private:
    struct Level {
        bool isDictionary;
        PropertyListDictionary dictionary;
        PropertyListArray array;
        QString key;
    };

    void put(PropertyListValue value);

    std::vector<Level> m_levels;
    PropertyListValue m_result;
    std::size_t m_count = 0;
};

// Writes the XML form as UTF-8 and passes on full chunks, so that a large list needs little memory. The
// result can always be read; see PropertyList::xml.
class PropertyListXmlWriter : public PropertyListSink {
public:
    // Takes a chunk; the bytes are valid only during the call.
    using Output = std::function<void(const char* bytes, std::size_t count)>;

    explicit PropertyListXmlWriter(Output output);

    void beginDictionary() override;
    void endDictionary() override;
    void beginArray() override;
    void endArray() override;
    void key(const QString& text) override;
    void string(const QString& text) override;
    void real(double value) override;
    void integer(std::int64_t value) override;
    void boolean(bool value) override;
    void date(Date value) override;
    void data(const QByteArray& bytes) override;

    // Completes the document and passes on the rest. REQUIRES: every dictionary and array has ended.
    void finish();

private:
    void enter(QByteArrayView tag);
    void leave(QByteArrayView tag);
    // A tag on its own line, indented by one tab for each level.
    void line(QByteArrayView tag);
    void append(QByteArrayView bytes);
    void appendText(QStringView text);
    void makeRoom(std::size_t count);
    void flush();

    Output m_output;
    std::unique_ptr<char[]> m_buffer;
    char* m_end;
    int m_depth = 0;
};
