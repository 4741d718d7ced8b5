// SPDX-License-Identifier: MIT
// A program to exchange text with, in a window of 240 x 240 at (X, Y): ExchangeClient X Y [TYPE BASE64]. A
// press and a pull on its window drags what the arguments say. Obeys, line by line on standard input:
//   formats       the types of the clipboard, with blanks between
//   data TYPE     what the clipboard has of that type, in Base64
//   paste         what a rich editor makes of a paste, in Base64
//   copy TEXT     puts a text on the clipboard and says "ok"
//   dropped TYPE  what was dropped here last has of that type, in Base64
// and tells by itself: "drop", "drag ACTION" when its own drag has ended.
#include <QApplication>
#include <QClipboard>
#include <QDrag>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QSocketNotifier>
#include <QTextEdit>

#include <cstdio>
#include <iostream>
#include <map>
#include <string>

namespace {

void say(const QByteArray& line) {
    std::cout << line.constData() << std::endl;
}

class Window : public QWidget {
public:
    Window(const QString& type, const QByteArray& bytes)
        : m_type(type)
        , m_bytes(bytes) {
        setWindowTitle(QStringLiteral("Exchange"));
        setAcceptDrops(true);
        setFixedSize(240, 240);
    }

    QByteArray dropped(const QString& type) { return m_dropped[type]; }

protected:
    void dragEnterEvent(QDragEnterEvent* event) override { event->acceptProposedAction(); }
    void dragMoveEvent(QDragMoveEvent* event) override { event->acceptProposedAction(); }
    void dropEvent(QDropEvent* event) override {
        m_dropped.clear();
        for (const QString& type : event->mimeData()->formats())
            m_dropped[type] = event->mimeData()->data(type);
        event->acceptProposedAction();
        say("drop");
    }
    void mouseMoveEvent(QMouseEvent* event) override {
        if (m_type.isEmpty() || m_isDragging || !(event->buttons() & Qt::LeftButton))
            return;
        m_isDragging = true;
        auto* offer = new QMimeData;
        offer->setData(m_type, m_bytes);
        auto* drag = new QDrag(this);
        drag->setMimeData(offer);
        say("drag " + QByteArray::number(int(drag->exec(Qt::CopyAction))));
        m_isDragging = false;
    }

private:
    QString m_type;
    QByteArray m_bytes;
    std::map<QString, QByteArray> m_dropped;
    bool m_isDragging = false;
};

QByteArray answer(Window& window, const QString& line) {
    const QString command = line.section(u' ', 0, 0);
    const QString type = line.section(u' ', 1);
    const QMimeData* clipboard = QGuiApplication::clipboard()->mimeData();
    if (command == QLatin1String("formats"))
        return clipboard ? clipboard->formats().join(u' ').toUtf8() : QByteArray();
    if (command == QLatin1String("data"))
        return clipboard ? clipboard->data(type).toBase64() : QByteArray();
    if (command == QLatin1String("dropped"))
        return window.dropped(type).toBase64();
    if (command == QLatin1String("copy")) {
        QGuiApplication::clipboard()->setText(type);
        return "ok";
    }
    QTextEdit editor;
    editor.paste();
    return editor.toPlainText().toUtf8().toBase64();
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    Window window(arguments.value(3), QByteArray::fromBase64(arguments.value(4).toLatin1()));
    window.move(arguments.value(1).toInt(), arguments.value(2).toInt());
    window.show();
    QSocketNotifier input(fileno(stdin), QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &application, [&window] {
        std::string line;
        if (!std::getline(std::cin, line))
            return QApplication::quit();
        say(answer(window, QString::fromStdString(line)));
    });
    return QApplication::exec();
}
