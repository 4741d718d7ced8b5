// SPDX-License-Identifier: MIT
#pragma once

#include <QCache>
#include <QObject>
#include <QPixmap>

#include <deque>
#include <functional>
#include <optional>

// The icons of programs, for whoever paints their names. An icon is read when it was asked for the first time, one by
// one between other events, so that painting never waits for the disk; a limited number of them is kept.
class ProgramIcons : public QObject {
    Q_OBJECT
public:
    // Answers for a program's name the name of an icon in a theme or the full path of a picture; absent if there is
    // none.
    using NameOf = std::function<std::optional<QString>(const QString& program)>;

    explicit ProgramIcons(NameOf nameOf, QObject* parent = nullptr);

    // The icon, as wide and high as `size` in logical pixels, for a device with `scale` pixels in a logical pixel. A
    // neutral one if the program has none; null while it is being looked for.
    QPixmap icon(const QString& program, int size, double scale);

Q_SIGNALS:
    // Icons that were asked for are there.
    void found();

private:
    struct Wanted {
        QString key;
        QString program;
        int size;
        double scale;
    };

    void findNext();
    QPixmap read(const Wanted& wanted) const;

    NameOf m_nameOf;
    // By the key. The cost is in kilobytes.
    QCache<QString, QPixmap> m_kept;
    std::deque<Wanted> m_wanted;
    // How many were found since the last telling.
    int m_untold = 0;
};
