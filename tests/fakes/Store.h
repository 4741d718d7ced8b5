// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/common/AccountTrouble.h"
#include "Classes/store/TKUUIDManager.h"
#include "Classes/store/TimeStoreApp.h"
#include "tests/fakes/Announcements.h"
#include "tests/fakes/FakePlatform.h"

#include <gtest/gtest.h>

// For tests of nodes: a registry of their own and makers of nodes.
class StoreTest : public testing::Test {
protected:
    static WindowElement element(std::int64_t number) { return WindowElement(number); }

    std::shared_ptr<TimeStoreNode> makeNode(const PropertyListValue& name,
                                            const PropertyListValue& time = {}) {
        return std::make_shared<TimeStoreNode>(store, name, time);
    }

    std::shared_ptr<TimeStoreApp> makeApp(const PropertyListValue& name, const PropertyListValue& time = {}) {
        return std::make_shared<TimeStoreApp>(store, name, time);
    }

    // The window of that name in `app`, made if necessary, with this time.
    static std::shared_ptr<TimeStoreWindow> window(TimeStoreApp& app, const char* name, double seconds = 0,
                                                   std::optional<WindowElement> element = {}) {
        auto made = app.windowStoreForName(QString::fromUtf8(name), element);
        made->addTimeInterval(seconds);
        return made;
    }

    // "Drafts 5, Inbox 40": the children in their order.
    static std::string children(const TimeStoreItem& item) {
        const auto list = item.children();
        if (!list)
            return "none";
        QStringList rows;
        for (const auto& child : *list)
            rows << QStringLiteral("%1 %2").arg(child->name()).arg(child->activeTime());
        return rows.join(QStringLiteral(", ")).toStdString();
    }

    FakePlatform fakes;
    TKUUIDManager registry{TKUUIDManager::savePath(fakes.folders.applicationSupport), fakes.runLoop,
                           fakes.log};
    AccountTrouble trouble;
    TimeStoreServices store{registry, fakes.notifications, fakes.runLoop, fakes.log, trouble};
};
