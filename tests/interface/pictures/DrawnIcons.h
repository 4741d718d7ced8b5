// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QPainter>
#include <QTemporaryDir>

#include <optional>

// The icon of a program that nobody makes: its first letter on its colour. Answers the path.
inline QString drawnIcon(const QString& program, const QColor& color, const QTemporaryDir& folder) {
    QImage icon(64, 64, QImage::Format_ARGB32_Premultiplied);
    icon.fill(Qt::transparent);
    QPainter painter(&icon);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRoundedRect(4, 4, 56, 56, 14, 14);
    QFont font = painter.font();
    font.setPixelSize(40);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(icon.rect(), Qt::AlignCenter, program.left(1));
    painter.end();
    const QString path = folder.filePath(program + QStringLiteral(".png"));
    icon.save(path);
    return path;
}

// None for the terminal and what is no program, so that the neutral one is seen too.
inline std::optional<QString> drawnIconOf(const QString& program) {
    static const QTemporaryDir folder;
    if (program == QStringLiteral("Terminal") || program == QStringLiteral("Idle"))
        return std::nullopt;
    return drawnIcon(program, QColor::fromHsv(int(qHash(program, 5) % 360), 190, 190), folder);
}
