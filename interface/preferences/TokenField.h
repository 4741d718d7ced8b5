// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>

class QLineEdit;
class QToolButton;

// A field for words that are kept apart by commas. Each word that a comma, Return or leaving the field completes becomes a
// token, which Delete or Backspace takes away and which the arrow keys reach. Typing goes on behind the last token.
class TokenField : public QFrame {
    Q_OBJECT
public:
    explicit TokenField(QWidget* parent = nullptr);

    // The words with commas between them, the one being typed included. Text that nobody has touched comes back to the
    // letter.
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
    // Makes tokens of all words that a comma has completed; of the rest too, if `all`.
    void complete(bool all);
    bool pressKeyOnToken(QToolButton& token, int key);
    void arrange();
    int lineHeight() const;

    QList<QToolButton*> m_tokens;
    QLineEdit* m_editor;
    // As it was set; absent (null) once it has been edited.
    QString m_untouched;
};
