// SPDX-License-Identifier: MIT
#pragma once

#include "Classes/store/Succession.h"
#include "Classes/store/TimeStoreWindow.h"

#include <map>
#include <unordered_map>
#include <unordered_set>

// The timer of one application, with the timers of its windows. With fewer than two windows it is a leaf: a
// single window is not shown beneath it. Its windows all have different identities, but windows of other
// applications with the same title share theirs.
class TimeStoreApp : public TimeStoreNode {
public:
    explicit TimeStoreApp(TimeStoreServices& services, const PropertyListValue& name,
                          const PropertyListValue& timeSpent = 0.0);
    TimeStoreApp(TimeStoreServices& services, const PropertyListDictionary& record);

    std::optional<Children> children() const override;
    bool isLeaf() const override { return m_windows.size() < 2; }
    // The windows in table order.
    std::vector<std::shared_ptr<TimeStoreWindow>> windows() const;
    // Appends the windows that have one of these identities.
    void appendWindows(const std::unordered_set<Identity>& identities, Children& found) const;
    std::size_t windowCount() const { return m_windows.size(); }
    // Whether the window is one of these. Fast with any number of windows, except for windows that are not
    // stored under their own name.
    bool holds(const TimeStoreWindow& window) const;

    // Other views show a renamed frozen application too, so projects are asked to refresh in the next turn of
    // the loop.
    void setRenamedNameFormatted(const PropertyListDictionary& record) override;

    // Finds the window with this element, whatever its name; else the window with this name, which gets the
    // element; else makes a new one. Null when the name is absent. `windowElement` may be absent.
    std::shared_ptr<TimeStoreWindow> windowStoreForName(const std::optional<QString>& name,
                                                        const std::optional<WindowElement>& windowElement);
    // The window with this element; null when there is none.
    std::shared_ptr<TimeStoreWindow> windowOfElement(const WindowElement& element);
    // From now on no window has this element.
    void forgetElement(const WindowElement& element);
    // Stores the window called `name` under the text of a new identity instead, so that a fresh window can
    // have the name. Does not mark it as branched. Freezing does without: there the new name moves the window.
    void branchWindowForName(const QString& name);
    // `survivor` takes in `joined`: its time, and the user's name for it if `survivor` has none. Projects
    // hear of it, and observers of children and isLeaf are told. The same happens whenever a window gets
    // another window's name.
    void join(TimeStoreWindow& survivor, TimeStoreWindow& joined);
    // Removes the windows of these identities; tells observers of children if there were any.
    void removeUUIDs(const std::unordered_set<Identity>& identities);
    void removeWindows(const std::function<bool(const TimeStoreWindow&)>& isUnwanted);
    // A record without a name is left out. Of two records with the same name the last is kept and takes in
    // the first; a frozen window always stays separate.
    void addChildFromDictionary(const PropertyListDictionary& record) override;
    // The same for many records: the caller tells the projects of all successions together.
    void takeChild(const PropertyListDictionary& record, Successions& successions);
    // Gives windows that share an identity, as a file may say, identities of their own. The caller tells the
    // projects.
    void tellWindowsApart(Successions& successions);
    // Brings a removed window back. If another window of that name has come since, that one gets the time.
    // Observers of children and isLeaf are told.
    void putBack(const PropertyListDictionary& record);
    // Enters the windows of these identities in the registry under their names; with null, all windows.
    void enterInRegistry(const std::unordered_set<Identity>* identities) const;

    // The window of this identity; null when there is none.
    std::shared_ptr<TimeStoreWindow> windowOfIdentity(const Identity& identity) const;
    // Takes the window of that name out and answers it; null when there is none. A frozen window is found
    // only by the text of its identity. Nobody is told.
    std::shared_ptr<TimeStoreWindow> takeWindow(const QString& name);
    // `window`, one of these, now stands for the screen window that `other` stood for.
    void takeElement(TimeStoreWindow& window, const TimeStoreWindow& other);
    // Takes over all windows of `other`. Where both have a window of the same name, this one's keeps the
    // place and gets the element; such pairs are answered, this one's first. Observers of children and isLeaf
    // are told.
    std::vector<std::pair<std::shared_ptr<TimeStoreWindow>, std::shared_ptr<TimeStoreWindow>>>
    takeOver(TimeStoreApp& other);

    // Writes the records of the windows, one after the other, into an array that the caller has begun.
    void writeWindowRecords(PropertyListSink& sink) const;

    QString description() const override;

private:
    struct Entry {
        std::shared_ptr<TimeStoreWindow> window;
        // Tells of changes of the window's name.
        Subscription naming;
    };
    using Table = std::map<QString, Entry>;

    void refreshProject();
    QString keyOf(const QString& title) const;
    QString ownKeyOf(const QString& title) const;
    bool holds(const Identity& identity) const;
    Identity identityFor(const QString& title);
    void store(const QString& key, std::shared_ptr<TimeStoreWindow> window);
    // Removes the entry from the table and forgets its element. Answers the next entry.
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
    void giveElement(TimeStoreWindow& window, const WindowElement& element);

    Table m_windows;
    // For the lookup at every tick, instead of a walk through the table. An entry is valid only while its
    // window still has the element.
    std::unordered_map<WindowElement, std::weak_ptr<TimeStoreWindow>> m_byElement;
};
