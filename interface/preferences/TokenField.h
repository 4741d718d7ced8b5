// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>

class QLineEdit;
class QToolButton;

// A field for words separated by commas. A word becomes a token when a comma, Return or leaving the field
// completes it. The arrow keys reach tokens, and Delete or Backspace removes them. New words are typed behind
// the last token.
class TokenField : public QFrame {
    Q_OBJECT
public:
    explicit TokenField(QWidget* parent = nullptr);

    // The words with commas between them, including the one being typed. A text that was not edited is
    // answered exactly as it was set.
    QString text() const;
    void setText(const QString& text);
    QStringList tokens() const;

    QLineEdit& editor() const { return *m_editor; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void addToken(const QString& word);
    void removeToken(QToolButton& token);
    // Makes tokens of all words that a comma has completed; with `all`, of the last word too.
    void complete(bool all);
    bool pressKeyOnToken(QToolButton& token, int key);
    void arrange();
    int lineHeight() const;

    QList<QToolButton*> m_tokens;
    QLineEdit* m_editor;
    // The text as it was set; null once it has been edited.
    QString m_untouched;
};
