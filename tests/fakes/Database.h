// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/engine/Engine.h"
#include "Classes/record/TimeDatabase.h"
#include "Classes/store/AccountEntries.h"
#include "platform/foundation/propertylists/PropertyList.h"
#include "tests/fakes/FakePlatform.h"

#include <QFile>

#include <gtest/gtest.h>

// For tests of the database: one over an engine, with files beside it.
class DatabaseTest : public testing::Test {
protected:
    TimeDatabase::Hooks hooks() {
        return {.projects =
                    [] {
                        return PropertyListArray{
                            PropertyListDictionary{{QStringLiteral("Label"), QStringLiteral("Home")}}};
                    },
                .setProjects = [this](const PropertyListValue& projects) { importedProjects = projects; },
                .computeTime = [this] { ++recomputations; },
                .timersReplaced = {}};
    }

    // The tree as text: "Mail 40 [Inbox 40], Editor 7".
    QString tree() {
        QStringList apps;
        for (const auto& app : engine.tracker().fullTimeSet()) {
            QStringList windows;
            for (const auto& window : app->windows())
                windows << QStringLiteral("%1 %2").arg(window->name()).arg(window->activeTime());
            apps << QStringLiteral("%1 %2").arg(app->name()).arg(app->activeTime()) +
                        (windows.isEmpty() ? QString() : QStringLiteral(" [%1]").arg(windows.join(u',')));
        }
        return apps.join(QStringLiteral(", "));
    }

    void addMail() {
        const PropertyListDictionary inbox{{kRecordName, QStringLiteral("Inbox")},
                                           {kRecordActiveTime, 40.25}};
        const PropertyListDictionary mail{{kRecordName, QStringLiteral("Mail")}, {kRecordActiveTime, 60.5}};
        engine.tracker().setArrayRepresentation(
            {PropertyListDictionary{{kEntryApp, mail}, {kEntryWindows, PropertyListArray{inbox}}}});
    }

    QString write(const QString& name, const QByteArray& bytes) {
        const QString path = fakes.home.filePath(name);
        QFile file(path);
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        file.write(bytes);
        return path;
    }

    QString write(const QString& name, const PropertyListValue& content) {
        return write(name, PropertyList::xml(content));
    }

    static PropertyListDictionary contentOf(const QString& path) {
        const auto file = PropertyList::readFile(path);
        return file && file->asDictionary() ? *file->asDictionary() : PropertyListDictionary();
    }

    FakePlatform fakes;
    Engine engine{fakes.platform, {}};
    PropertyListValue importedProjects;
    int recomputations = 0;
    TimeDatabase database{engine.tracker(), engine.services().store, fakes.defaults, fakes.folders, hooks()};
};
