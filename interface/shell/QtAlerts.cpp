// SPDX-License-Identifier: MIT
#include "interface/shell/QtAlerts.h"

#include "interface/shell/PlainText.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QApplication>
#include <QEventLoop>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QProgressDialog>
#include <QPushButton>
#include <QTimer>

#include <deque>

namespace {

QString databaseFilter() {
    return localized("Ticklog databases") + QStringLiteral(" (*.tkd)");
}

constexpr int kIconSize = 64;

void say(QMessageBox& box, const QString& message, const QString& informativeText) {
    constexpr int kCharactersPerLine = 52;
    // Setting any text creates the label, which is then told to show plain text before the real one is set.
    box.setInformativeText(QStringLiteral(" "));
    PlainText::keepPlain(box);
    box.setText(PlainText::cut(message, PlainText::kLongestParagraph));
    box.setInformativeText(PlainText::cut(informativeText, PlainText::kLongestParagraph));
    // Qt makes the box as narrow as its headline, even if the text below is long.
    if (auto* text = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_informativelabel")))
        text->setMinimumWidth(text->fontMetrics().averageCharWidth() * kCharactersPerLine);
}

constexpr int kSteps = 1000;
// In milliseconds.
constexpr int kShortPiece = 500;
constexpr int kBetweenLooks = 20;
// The loop's result when the work is done; 0 for anything else that ends it.
constexpr int kIsDone = 1;

void prepare(QProgressDialog& dialog, const QString& message) {
    dialog.setLabel(new PlainLabel(PlainText::cut(message, PlainText::kLongestParagraph)));
    dialog.setObjectName(QStringLiteral("progressPanel"));
    dialog.setAccessibleName(message);
    dialog.setWindowModality(Qt::WindowModal);
    dialog.setWindowTitle(QStringLiteral("Ticklog"));
    if (auto* bar = dialog.findChild<QProgressBar*>())
        bar->setAccessibleName(message);
}

class QtProgressPanel : public ProgressPanel {
public:
    QtProgressPanel(QWidget* window, const QString& message)
        : m_dialog(QString(), QString(), 0, kSteps, window) {
        prepare(m_dialog, message);
    }

    void setDone(double done) override { m_dialog.setValue(int(done * kSteps)); }

private:
    QProgressDialog m_dialog;
};

} // namespace

// Who is asking, and who asks next.
struct QtAlerts::Turn {
    void goOn() {
        if (isGoingOn || dialog || waiting.empty())
            return;
        isGoingOn = true;
        const auto next = std::move(waiting.front());
        waiting.pop_front();
        next();
        isGoingOn = false;
        goOn();
    }

    void bringToFront() const {
        dialog->setWindowState(dialog->windowState() & ~Qt::WindowMinimized);
        dialog->raise();
        dialog->activateWindow();
    }

    // The dialogue that waits for an answer.
    QPointer<QDialog> dialog;
    std::deque<std::function<void()>> waiting;
    bool isGoingOn = false;
};

QtAlerts::QtAlerts()
    : m_turn(std::make_shared<Turn>()) {}

QtAlerts::~QtAlerts() {
    delete m_open;
}

bool QtAlerts::run(QDialog& dialog) {
    if (m_turn->dialog) {
        m_turn->bringToFront();
        return false;
    }
    m_turn->dialog = &dialog;
    dialog.exec();
    free();
    return true;
}

void QtAlerts::free() {
    m_turn->dialog.clear();
    // Later, when the code that got the answer has finished.
    QMetaObject::invokeMethod(
        qApp,
        [turn = std::weak_ptr(m_turn)] {
            if (const auto current = turn.lock())
                current->goOn();
        },
        Qt::QueuedConnection);
}

void QtAlerts::whenFree(std::function<void()> ask) {
    if (m_turn->dialog)
        m_turn->bringToFront();
    m_turn->waiting.push_back(std::move(ask));
    m_turn->goOn();
}

std::optional<QString> QtAlerts::chooseWith(QFileDialog& panel) {
    if (!run(panel) || panel.result() != QDialog::Accepted || panel.selectedFiles().isEmpty())
        return std::nullopt;
    return panel.selectedFiles().first();
}

int QtAlerts::ask(const Question& question) {
    QMessageBox box(m_window);
    box.setObjectName(QStringLiteral("alert"));
    box.setWindowModality(Qt::WindowModal);
    box.setIcon(QMessageBox::Warning);
    box.setWindowTitle(QStringLiteral("Ticklog"));
    say(box, question.message, question.informativeText);
    const bool keeps = question.whenClosed == Default;
    QPushButton* first =
        box.addButton(question.defaultButton, keeps ? QMessageBox::RejectRole : QMessageBox::AcceptRole);
    QPushButton* alternate =
        box.addButton(question.alternateButton, keeps ? QMessageBox::AcceptRole : QMessageBox::RejectRole);
    const QPushButton* other = question.otherButton.isEmpty()
                                   ? nullptr
                                   : box.addButton(question.otherButton, QMessageBox::ActionRole);
    box.setDefaultButton(first);
    box.setEscapeButton(keeps ? first : alternate);
    if (question.opened && !m_turn->dialog)
        question.opened([&box] { box.reject(); });
    if (!run(box))
        return question.whenClosed;
    const QAbstractButton* clicked = box.clickedButton();
    if (clicked == first)
        return Default;
    if (clicked == alternate)
        return Alternate;
    return other && clicked == other ? Other : question.whenClosed;
}

std::optional<QString> QtAlerts::chooseSaveLocation(const QString& message, const QString& path,
                                                    bool replaces) {
    QFileDialog panel(m_window, message, path, databaseFilter());
    panel.setObjectName(QStringLiteral("savePanel"));
    panel.setAcceptMode(QFileDialog::AcceptSave);
    panel.setDefaultSuffix(QStringLiteral("tkd"));
    panel.selectFile(path);
    // With false, the caller checks for existing files itself.
    panel.setOption(QFileDialog::DontConfirmOverwrite, !replaces);
    return chooseWith(panel);
}

std::optional<QString> QtAlerts::chooseOpenFile(const QString& message, const QString& folder) {
    QFileDialog panel(m_window, message, folder, databaseFilter());
    panel.setObjectName(QStringLiteral("openPanel"));
    panel.setFileMode(QFileDialog::ExistingFile);
    return chooseWith(panel);
}

std::optional<QString> QtAlerts::chooseExportFile(const QString& message, const QString& path) {
    const QString suffix = QFileInfo(path).suffix();
    const QString kind = suffix == QLatin1String("pdf") ? localized("PDF documents") : localized("CSV files");
    // Of the window that asks: it is in front again afterwards.
    QWidget* asking = QApplication::activeWindow();
    QFileDialog panel(asking ? asking : m_window.data(), message, path,
                      kind + QStringLiteral(" (*.%1)").arg(suffix));
    panel.setObjectName(QStringLiteral("exportPanel"));
    panel.setAcceptMode(QFileDialog::AcceptSave);
    panel.setDefaultSuffix(suffix);
    panel.selectFile(path);
    return chooseWith(panel);
}

std::optional<QString> QtAlerts::chooseFolder(const QString& message, const QString& folder) {
    QFileDialog panel(m_window, message, folder);
    panel.setObjectName(QStringLiteral("folderPanel"));
    panel.setFileMode(QFileDialog::Directory);
    panel.setOption(QFileDialog::ShowDirsOnly);
    // The folder that is shown, unless the user has selected another one in it.
    return chooseWith(panel);
}

bool QtAlerts::waitFor(const QString& message, const std::function<double()>& done) {
    if (m_turn->dialog) {
        m_turn->bringToFront();
        return false;
    }
    QProgressDialog dialog(QString(), localized("Cancel"), 0, kSteps, m_window);
    prepare(dialog, message);
    // Otherwise it would hide or restart at the end.
    dialog.setAutoReset(false);
    dialog.setMinimumDuration(kShortPiece);
    m_turn->dialog = &dialog;
    // Also ends when the program quits.
    QEventLoop loop;
    QObject::connect(&dialog, &QProgressDialog::canceled, &loop, &QEventLoop::quit);
    // Escape before the panel is active rejects it without the signal that it was cancelled.
    QObject::connect(&dialog, &QDialog::rejected, &loop, &QEventLoop::quit);
    QTimer looks;
    QObject::connect(&looks, &QTimer::timeout, &dialog, [&] {
        const double part = done();
        dialog.setValue(int(part * kSteps));
        if (part >= 1)
            loop.exit(kIsDone);
    });
    looks.start(kBetweenLooks);
    const bool isDone = loop.exec() == kIsDone;
    free();
    return isDone;
}

std::unique_ptr<ProgressPanel> QtAlerts::showProgress(const QString& message) {
    return std::make_unique<QtProgressPanel>(m_window, message);
}

void QtAlerts::showError(const QString& message, const QString& informativeText) {
    QMessageBox box(m_window);
    box.setObjectName(QStringLiteral("alert"));
    box.setWindowModality(Qt::WindowModal);
    box.setIcon(QMessageBox::Critical);
    box.setWindowTitle(QStringLiteral("Ticklog"));
    say(box, message, informativeText);
    box.exec();
}

void QtAlerts::showNotice(const QString& message, const QString& informativeText) {
    // Without a parent: a minimised parent would hide it.
    open(nullptr, QStringLiteral("notice"), message, message, informativeText);
}

void QtAlerts::showAbout(const QString& title, const QString& text) {
    open(m_window, QStringLiteral("aboutBox"), title, text.section(u'\n', 0, 0), text.section(u'\n', 1));
}

void QtAlerts::open(QWidget* parent, const QString& name, const QString& title, const QString& message,
                    const QString& informativeText) {
    // Only one at a time is open.
    if (m_open)
        m_open->close();
    auto* box = new QMessageBox(parent);
    m_open = box;
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setObjectName(name);
    box->setWindowModality(Qt::NonModal);
    box->setIconPixmap(QApplication::windowIcon().pixmap(QSize(kIconSize, kIconSize)));
    box->setWindowTitle(title);
    say(*box, message, informativeText);
    box->setStandardButtons(QMessageBox::Ok);
    box->show();
    box->raise();
    box->activateWindow();
}
