// SPDX-License-Identifier: MIT
#pragma once

#include <QExplicitlySharedDataPointer>
#include <QSharedData>

#include <algorithm>
#include <cstdint>
#include <list>
#include <utility>

// The part of a list of callbacks that subscriptions know.
class ListenersBase : public QSharedData {
public:
    virtual ~ListenersBase() = default;
    virtual void remove(std::uint64_t id) = 0;
};

// Keeps a callback registered for as long as it lives. It may outlive the list.
class [[nodiscard]] Subscription {
public:
    Subscription() = default;
    Subscription(ListenersBase* list, std::uint64_t id)
        : m_list(list)
        , m_id(id) {}
    Subscription(Subscription&& other) noexcept { swap(other); }
    Subscription& operator=(Subscription&& other) noexcept {
        Subscription taken(std::move(other));
        swap(taken);
        return *this;
    }
    ~Subscription() { cancel(); }

    // False for one that stands for nothing, or was ended.
    explicit operator bool() const { return bool(m_list); }

    void cancel() {
        if (const auto list = std::exchange(m_list, {}))
            list->remove(m_id);
    }

private:
    void swap(Subscription& other) noexcept {
        m_list.swap(other.m_list);
        std::swap(m_id, other.m_id);
    }

    QExplicitlySharedDataPointer<ListenersBase> m_list;
    std::uint64_t m_id = 0;
};

// A list of records that may grow, shrink or be released by its owner while it is being walked. A walk holds
// a reference, so the list survives whatever the callbacks do.
template<class Record>
class Listeners : public ListenersBase {
public:
    // Adds `record` at the end.
    Subscription add(Record record) {
        m_slots.push_back({std::move(record), ++m_lastId, false});
        return Subscription(this, m_lastId);
    }

    void remove(std::uint64_t id) override {
        const auto slot = std::ranges::find(m_slots, id, &Slot::id);
        if (slot == m_slots.end())
            return;
        slot->gone = true;
        m_unswept = true;
        sweep();
    }

    // Removes all; a walk that is under way visits no more records.
    void removeAll() {
        for (Slot& slot : m_slots)
            slot.gone = true;
        m_unswept = true;
        sweep();
    }

    // Visits, in order of registration, the records that were there when the walk began and still are.
    template<class Visitor>
    void forEach(Visitor&& visit) {
        const QExplicitlySharedDataPointer<Listeners> alive(this);
        const std::uint64_t newest = m_lastId;
        const Walk walk(*this);
        for (Slot& slot : m_slots) {
            if (slot.id > newest)
                break;
            if (!slot.gone)
                visit(slot.record);
        }
    }

    bool isEmpty() const { return m_slots.empty(); }

private:
    struct Slot {
        Record record;
        std::uint64_t id;
        bool gone;
    };

    struct Walk {
        explicit Walk(Listeners& walked)
            : list(walked) {
            ++list.m_depth;
        }
        ~Walk() {
            --list.m_depth;
            list.sweep();
        }
        Listeners& list;
    };

    // Destroys removed records, but never one whose callback may be running.
    void sweep() {
        if (m_depth > 0 || !m_unswept)
            return;
        m_unswept = false;
        // Moved out first, because destructors of records may call this again.
        std::list<Slot> swept;
        for (auto slot = m_slots.begin(); slot != m_slots.end();) {
            const auto next = std::next(slot);
            if (slot->gone)
                swept.splice(swept.end(), m_slots, slot);
            slot = next;
        }
    }

    // A list, because a record must not move while its callback adds others.
    std::list<Slot> m_slots;
    std::uint64_t m_lastId = 0;
    int m_depth = 0;
    bool m_unswept = false;
};
