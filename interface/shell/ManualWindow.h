// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

class QListWidget;
class QTextBrowser;

// The manual, which is part of the program: its headings at the left, the page at the right. Links that lead out of it
// open nothing.
class ManualWindow : public QDialog {
    Q_OBJECT
public:
    explicit ManualWindow(QWidget* parent = nullptr);

    QTextBrowser& page() const { return *m_page; }
    QListWidget& headings() const { return *m_headings; }

private:
    void findHeadings();
    void showHeading(int row);

    QListWidget* m_headings;
    QTextBrowser* m_page;
    // Positions in the text, in the order of the headings.
    QList<int> m_places;
};
