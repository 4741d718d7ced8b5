// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/store/Succession.h"
#include "Classes/store/TimeStoreWindow.h"

#include <map>
#include <unordered_map>
#include <unordered_set>

// The timer of one application, with the timers of its windows. With fewer than two windows it is a leaf: a single
// window is not shown beneath it. No two of its windows have one identity, while windows of several applications share
// that of their title.
class TimeStoreApp : public TimeStoreNode {
public:
    explicit TimeStoreApp(TimeStoreServices& services, const PropertyListValue& name,
                          const PropertyListValue& timeSpent = 0.0);
    TimeStoreApp(TimeStoreServices& services, const PropertyListDictionary& record);

    std::optional<Children> children() const override;
    bool isLeaf() const override { return m_windows.size() < 2; }
    // The windows in table order.
    std::vector<std::shared_ptr<TimeStoreWindow>> windows() const;
    // Appends those of the windows that have one of these identities.
    void appendWindows(const std::unordered_set<Identity>& identities, Children& found) const;
    std::size_t windowCount() const { return m_windows.size(); }
    // Costs the same with any number of windows, but for those that are not found under their names.
    bool holds(const TimeStoreWindow& window) const;

    // A renamed frozen application is shown elsewhere too: projects are asked to refresh in the next turn.
    void setRenamedNameFormatted(const PropertyListDictionary& record) override;

    // The window of that element, whatever it is called; else the window of that name, which takes the element; else
    // a new one. Null when the name is absent. `windowElement` may be absent.
    std::shared_ptr<TimeStoreWindow> windowStoreForName(const std::optional<QString>& name,
                                                        const std::optional<WindowElement>& windowElement);
    // Stores the window called `name` under a brand-new identity's text instead, so that a fresh window can take the
    // name. Does not mark it as branched. REQUIRES: there is a window of that name.
    void branchWindowForName(const QString& name);
    // One window takes in another: its time, and the user's name for it where it has none itself. Projects hear of it,
    // and observers of children and isLeaf are told. So it is whenever a window gets another one's name, too.
    void join(TimeStoreWindow& survivor, TimeStoreWindow& joined);
    // Drops the windows of these identities and tells observers of children if there were any.
    void removeUUIDs(const std::unordered_set<Identity>& identities);
    void removeWindows(const std::function<bool(const TimeStoreWindow&)>& isUnwanted);
    // One without a name is left out. Of two records of a name the last is kept and takes the other one in; but a
    // frozen window stays by itself.
    void addChildFromDictionary(const PropertyListDictionary& record) override;
    // The same, for many records: the caller tells the projects of all together.
    void takeChild(const PropertyListDictionary& record, Successions& successions);
    // Gives windows identities of their own that share one, as files may say. The caller tells the projects.
    void tellWindowsApart(Successions& successions);
    // A window that was removed comes back; where another of its name has come since, the time goes to that one.
    // Observers of children and isLeaf are told.
    void putBack(const PropertyListDictionary& record);
    // Sees to it that the registry knows the windows of these identities by their names; all of them without any.
    void enterInRegistry(const std::unordered_set<Identity>* identities) const;

    // Null when there is none.
    std::shared_ptr<TimeStoreWindow> windowOfIdentity(const Identity& identity) const;
    // Takes the window of that name out and answers it, null when there is none. A frozen window has no name but its
    // identity here. Nobody is told.
    std::shared_ptr<TimeStoreWindow> takeWindow(const QString& name);
    // `window`, which is one of these, is what `other` has been on the screen.
    void takeElement(TimeStoreWindow& window, const TimeStoreWindow& other);
    // Takes over the windows of `other`, which keeps none. Where both have one of a name, this one's takes the element;
    // both are answered, this one's first. Observers of children and isLeaf are told.
    std::vector<std::pair<std::shared_ptr<TimeStoreWindow>, std::shared_ptr<TimeStoreWindow>>>
    takeOver(TimeStoreApp& other);

    // The windows' records, one after the other, within an array the caller has begun.
    void writeWindowRecords(PropertyListSink& sink) const;

    QString description() const override;

private:
    struct Entry {
        std::shared_ptr<TimeStoreWindow> window;
        // Following the window's renames.
        Subscription naming;
    };
    using Table = std::map<QString, Entry>;

    void refreshProject();
    QString keyOf(const QString& title) const;
    QString ownKeyOf(const QString& title) const;
    bool holds(const Identity& identity) const;
    Identity identityFor(const QString& title);
    void store(const QString& key, std::shared_ptr<TimeStoreWindow> window);
    // Takes the entry out of the table and forgets its element. Answers the next one.
    Table::iterator drop(Table::iterator entry);
    Table::iterator placeOf(const TimeStoreWindow& window, const QString& key);
    void move(Table::iterator place, const QString& key);
    void followRename(TimeStoreWindow& window, const QString& oldName);
    void followInRegistry(const TimeStoreWindow& window, const QString& oldName);
    void leaveTitle(const TimeStoreWindow& joined, const TimeStoreWindow& survivor);
    static void moveTime(TimeStoreWindow& from, TimeStoreWindow& to);
    void succeed(const std::optional<Identity>& former, const std::optional<Identity>& successor);
    void tell(const Successions& successions);
    void giveIdentityOfItsOwn(TimeStoreWindow& window, Successions& successions);
    std::shared_ptr<TimeStoreWindow> windowOfElement(const WindowElement& element);
    void giveElement(TimeStoreWindow& window, const WindowElement& element);

    Table m_windows;
    // Asked at every tick, so not by walking the table. An entry counts only while its window still has the element.
    std::unordered_map<WindowElement, std::weak_ptr<TimeStoreWindow>> m_byElement;
};
