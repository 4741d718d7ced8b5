// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/store/TimeStoreItem.h"

// Stands for a row of which only some children are shown. Everything else is answered by the row itself.
class TimeStorePruneProxy : public TimeStoreItem {
public:
    static std::shared_ptr<TimeStorePruneProxy> prunedProxyForObject(std::shared_ptr<TimeStoreItem> object,
                                                                     std::optional<QString> searchString,
                                                                     float cutoffTime);
    TimeStorePruneProxy(std::shared_ptr<TimeStoreItem> object, std::optional<QString> searchString,
                        float cutoffTime);

    // The children that match by themselves, each shown whole. Found anew at every call.
    std::optional<Children> children() const override;

    TimeStoreNode& node() override { return m_object->node(); }
    QString name() const override { return m_object->name(); }
    QString renamedName() const override { return m_object->renamedName(); }
    PropertyListDictionary renamedNameFormatted() const override { return m_object->renamedNameFormatted(); }
    void setRenamedNameFormatted(const PropertyListDictionary& record) override {
        m_object->setRenamedNameFormatted(record);
    }
    bool renamedNameEditable() const override { return m_object->renamedNameEditable(); }
    QString sortName() const override { return m_object->sortName(); }
    Seconds activeTime() const override { return m_object->activeTime(); }
    QString activeTimeString() const override { return m_object->activeTimeString(); }
    std::optional<Identity> uuid() const override { return m_object->uuid(); }
    bool branched() const override { return m_object->branched(); }
    bool isLeaf() const override { return m_object->isLeaf(); }
    bool isApp() const override { return m_object->isApp(); }
    std::shared_ptr<TimeStoreItem> prunedObjectForSearchString(const std::optional<QString>& searchString,
                                                               float cutoffTime) override {
        return m_object->prunedObjectForSearchString(searchString, cutoffTime);
    }
    Seconds activeTimeForSearchString(const QString& searchString) const override {
        return m_object->activeTimeForSearchString(searchString);
    }

private:
    std::shared_ptr<TimeStoreItem> m_object;
    std::optional<QString> m_searchString;
    // Seconds.
    float m_cutoffTime;
};
