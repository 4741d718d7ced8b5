// SPDX-License-Identifier: MIT
#include "interface/shell/ManualWindow.h"

#include "interface/shell/FirstSize.h"
#include "interface/shell/Named.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QAbstractTextDocumentLayout>
#include <QListWidget>
#include <QScrollBar>
#include <QSplitter>
#include <QTextBlock>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace {

constexpr QSize kFirstSize(960, 640);
constexpr int kHeadingsWidth = 210;
constexpr double kPageMargin = 24;
constexpr int kPictureWidth = 640;

// Shows wide pictures as wide as the page.
class Page : public QTextBrowser {
protected:
    QVariant loadResource(int type, const QUrl& name) override {
        if (type != QTextDocument::ImageResource)
            return QTextBrowser::loadResource(type, name);
        const QImage picture(u':' + source().resolved(name).path());
        return picture.width() > kPictureWidth
                   ? picture.scaledToWidth(kPictureWidth, Qt::SmoothTransformation)
                   : picture;
    }
};

} // namespace

ManualWindow::ManualWindow(QWidget* parent)
    : QDialog(parent)
    , m_headings(named(new QListWidget, QStringLiteral("manualHeadings"), localized("Chapters")))
    , m_page(named<QTextBrowser>(new Page, QStringLiteral("manualPage"))) {
    named(this, QStringLiteral("manualWindow"));
    setWindowTitle(localized("Manual"));
    setAccessibleName(windowTitle());
    m_page->setAccessibleName(windowTitle());
    m_page->setFrameShape(QFrame::NoFrame);
    m_page->setOpenLinks(false);
    m_page->setSource(QUrl(QStringLiteral("qrc:/manual/manual.md")));
    m_page->document()->setDocumentMargin(kPageMargin);
    auto* halves = new QSplitter;
    halves->addWidget(m_headings);
    halves->addWidget(m_page);
    halves->setStretchFactor(1, 1);
    halves->setSizes({kHeadingsWidth, kFirstSize.width() - kHeadingsWidth});
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(halves);
    findHeadings();
    connect(m_headings, &QListWidget::currentRowChanged, this, &ManualWindow::showHeading);
    resize(firstSize(*this, kFirstSize));
}

void ManualWindow::findHeadings() {
    for (QTextBlock block = m_page->document()->begin(); block.isValid(); block = block.next())
        if (block.blockFormat().headingLevel() == 2) {
            m_headings->addItem(block.text());
            m_places << block.position();
        }
}

void ManualWindow::showHeading(int row) {
    QTextCursor cursor(m_page->document());
    cursor.setPosition(m_places[row]);
    m_page->setTextCursor(cursor);
    // Asking for the last block first lays out all of the page, and with it the scroll bar's range.
    const QAbstractTextDocumentLayout& layout = *m_page->document()->documentLayout();
    layout.blockBoundingRect(m_page->document()->lastBlock());
    m_page->verticalScrollBar()->setValue(int(layout.blockBoundingRect(cursor.block()).top()));
}
