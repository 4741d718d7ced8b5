// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/store/TimeStoreApp.h"

// A row for the time of an application that none of its windows has: what passed before a window had a title. It is
// for lists that show the windows without their application. It has no identity, so it cannot be dragged, renamed,
// frozen or deleted: all these would mean the whole application.
class UntitledTime : public TimeStoreItem {
public:
    // Less than this is no time.
    static constexpr Seconds kLeast = 0.01;

    explicit UntitledTime(std::shared_ptr<TimeStoreApp> application)
        : m_application(std::move(application)) {}

    TimeStoreNode& node() override { return *m_application; }
    QString name() const override { return m_application->name(); }
    QString renamedName() const override { return m_application->renamedName(); }
    PropertyListDictionary renamedNameFormatted() const override {
        return m_application->renamedNameFormatted();
    }
    void setRenamedNameFormatted(const PropertyListDictionary&) override {}
    bool renamedNameEditable() const override { return false; }
    QString sortName() const override { return m_application->sortName(); }
    // Never less than nothing, whatever was corrected.
    Seconds activeTime() const override;
    QString activeTimeString() const override;
    std::optional<Identity> uuid() const override { return std::nullopt; }
    bool branched() const override { return m_application->branched(); }
    std::optional<Children> children() const override { return std::nullopt; }
    bool isLeaf() const override { return true; }
    bool isApp() const override { return true; }
    std::shared_ptr<TimeStoreItem> prunedObjectForSearchString(const std::optional<QString>& searchString,
                                                               float cutoffTime) override;
    Seconds activeTimeForSearchString(const QString& searchString) const override;

private:
    std::shared_ptr<TimeStoreApp> m_application;
};
