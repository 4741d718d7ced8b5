// SPDX-License-Identifier: MIT
#include "platform/foundation/values/Assertions.h"
#include "tests/fakes/Store.h"

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

class TimeStoreNodeTest : public StoreTest {
protected:
    std::shared_ptr<TimeStoreNode> fromRecord(const PropertyListDictionary& record) {
        return std::make_shared<TimeStoreNode>(store, record);
    }

    // "Name=Mail, ActiveTime=12.5": the entries in their order, data as hexadecimal.
    static std::string entries(const PropertyListDictionary& record) {
        QStringList list;
        for (const auto& [key, value] : record)
            list << key + u'=' +
                        (value.asData()   ? QString::fromLatin1(value.asData()->toHex())
                         : value.number() ? QString::number(*value.number())
                                          : value.toString());
        return list.join(u", "_s).toStdString();
    }

    const QByteArray m_bytes = QByteArray::fromHex("00112233445566ff");
};

TEST_F(TimeStoreNodeTest, aNewNode_hasItsNameAndNoTimeAndIsNeitherRenamedNorBranched) {
    const auto node = makeNode(u"Mail"_s);
    EXPECT_EQ(str(node->name()), "Mail");
    EXPECT_EQ(str(node->displayName()), "Mail");
    EXPECT_EQ(str(node->renamedName()), "Mail");
    EXPECT_EQ(str(node->sortName()), "Mail");
    EXPECT_EQ(node->activeTime(), 0);
    EXPECT_EQ(str(node->activeTimeString()), "00:00:00");
    EXPECT_FALSE(node->renamedNameStorage());
    EXPECT_FALSE(node->branched());
    EXPECT_TRUE(node->renamedNameEditable());
    EXPECT_TRUE(node->isLeaf());
    EXPECT_FALSE(node->isApp());
    EXPECT_FALSE(node->children());
}

TEST_F(TimeStoreNodeTest, aNameThatIsNotText_readsAsEmpty) {
    for (const PropertyListValue& name :
         {PropertyListValue(), PropertyListValue(7), PropertyListValue(true), PropertyListValue(m_bytes),
          PropertyListValue(PropertyListArray())}) {
        const auto node = makeNode(name);
        EXPECT_EQ(str(node->name()), "");
        EXPECT_FALSE(node->name().isNull());
        EXPECT_EQ(node->uuid(), registry.uuidForName(u"TimeStoreNode"_s));
    }
}

TEST_F(TimeStoreNodeTest, aTimeThatIsAbsentNegativeOrNoNumber_isNone) {
    const double infinity = std::numeric_limits<double>::infinity();
    for (const PropertyListValue& time :
         {PropertyListValue(), PropertyListValue(-0.5), PropertyListValue(-7), PropertyListValue(u"12"_s),
          PropertyListValue(m_bytes), PropertyListValue(std::nan("")), PropertyListValue(infinity)})
        EXPECT_EQ(makeNode(u"Mail"_s, time)->activeTime(), 0);
    EXPECT_EQ(makeNode(u"Mail"_s, 12)->activeTime(), 12);
    EXPECT_EQ(makeNode(u"Mail"_s, 0.25)->activeTime(), 0.25);
}

TEST_F(TimeStoreNodeTest, theRegistryKey_isTheClassAndTheNameWithNothingBetween) {
    EXPECT_EQ(makeNode(u"Mail"_s)->uuid(), registry.uuidForName(u"TimeStoreNodeMail"_s));
    const auto app = makeApp(u"Mail"_s);
    EXPECT_EQ(app->uuid(), registry.uuidForName(u"TimeStoreAppMail"_s));
    EXPECT_EQ(window(*app, "Inbox")->uuid(), registry.uuidForName(u"TimeStoreWindowInbox"_s));
}

TEST_F(TimeStoreNodeTest, windowsOfOneTitleInTwoApplications_shareOneIdentity) {
    const auto mail = makeApp(u"Mail"_s);
    const auto news = makeApp(u"News"_s);
    EXPECT_EQ(window(*mail, "Untitled")->uuid(), window(*news, "Untitled")->uuid());
}

TEST_F(TimeStoreNodeTest, namesThatDifferOnlyInCase_haveIdentitiesOfTheirOwn) {
    EXPECT_NE(makeNode(u"mail"_s)->uuid(), makeNode(u"Mail"_s)->uuid());
}

TEST_F(TimeStoreNodeTest, aNameOfTenThousandCharacters_isKeptAndFoundAgain) {
    const QString name(10000, u'ä');
    const auto node = makeNode(name);
    EXPECT_EQ(node->name(), name);
    EXPECT_EQ(makeNode(name)->uuid(), node->uuid());
}

TEST_F(TimeStoreNodeTest, naming_isToldInOneOrderBeforeAndInTheReverseAfter) {
    const auto node = makeNode(u"Mail"_s);
    const Announcements told(
        *node, {kNameKey, kRenamedNameKey, kRenamedNameFormattedKey, kSortNameKey, kActiveTimeStringKey});
    node->setName(u"Post"_s);
    EXPECT_EQ(told.told(), "will name, will renamedNameFormatted, will renamedName, "
                           "did renamedName, did renamedNameFormatted, did name");
}

TEST_F(TimeStoreNodeTest, naming_isStoredBetweenTheTwo) {
    const auto node = makeNode(u"Mail"_s);
    QStringList seen;
    const auto subscription = node->observe(
        kNameKey,
        [&](const ObservedChange& change) { seen << node->name() + u' ' + change.oldValue.toString(); },
        {.prior = true, .values = true});
    node->setName(u"Post"_s);
    EXPECT_EQ(str(seen.join(u", "_s)), "Mail Mail, Post Mail");
}

TEST_F(TimeStoreNodeTest, namingWithTheSameName_tellsNobodyAndWritesNothing) {
    const auto node = makeNode(u"Mail"_s);
    const Announcements told(*node, {kNameKey, kRenamedNameKey, kRenamedNameFormattedKey});
    node->setName(u"Mail"_s);
    EXPECT_EQ(told.told(), "");
    EXPECT_EQ(fakes.runLoop.activeTimers(), 0);
}

TEST_F(TimeStoreNodeTest, namingWithNothing_namesItEmpty) {
    const auto node = makeNode(u"Mail"_s);
    node->setName({});
    EXPECT_EQ(str(node->name()), "");
}

TEST_F(TimeStoreNodeTest, namingWithSomethingElseThanText_breaksTheContractAndChangesNothing) {
    const auto node = makeNode(u"Mail"_s);
    const Announcements told(*node, {kNameKey});
    try {
        node->setName(7);
        FAIL() << "a number was taken as a name";
    } catch (const InternalInconsistency& failure) {
        EXPECT_EQ(str(failure.logLine()),
                  "*** Assertion failure in Classes/TimeStoreNode:68: Invalid parameter not satisfying: "
                  "[aString isKindOfClass:[NSString class]]");
    }
    EXPECT_EQ(str(node->name()), "Mail");
    EXPECT_EQ(told.told(), "");
}

TEST_F(TimeStoreNodeTest, namingANode_movesItsRegistryEntry) {
    const auto node = makeNode(u"Mail"_s);
    const auto identity = node->uuid();
    node->setName(u"Post"_s);
    EXPECT_EQ(node->uuid(), identity);
    EXPECT_EQ(registry.uuidForName(u"TimeStoreNodePost"_s), identity);
    EXPECT_NE(registry.uuidForName(u"TimeStoreNodeMail"_s), identity);
}

TEST_F(TimeStoreNodeTest, displayRenaming_isShownAndKeepsTheName) {
    const auto node = makeNode(u"Mail"_s);
    node->setRenamedNameFormatted({{kRecordName, u"Post"_s}});
    EXPECT_EQ(str(node->name()), "Mail");
    EXPECT_EQ(str(node->renamedName()), "Post");
    EXPECT_EQ(str(node->sortName()), "Post");
    EXPECT_EQ(entries(node->renamedNameFormatted()), "Name=Post, Original=Mail");
}

TEST_F(TimeStoreNodeTest, displayRenamingToItsOwnName_endsTheRenaming) {
    const auto node = makeNode(u"Mail"_s);
    node->setRenamedNameFormatted({{kRecordName, u"Post"_s}});
    node->setRenamedNameFormatted({{kRecordName, u"Mail"_s}});
    EXPECT_FALSE(node->renamedNameStorage());
    EXPECT_EQ(entries(node->renamedNameFormatted()), "Name=Mail");
    EXPECT_FALSE(node->dictionaryRepresentation().contains(kRecordRenamedName));
}

TEST_F(TimeStoreNodeTest, displayRenamingToANameOfOtherCase_isARenaming) {
    const auto node = makeNode(u"Mail"_s);
    node->setRenamedNameFormatted({{kRecordName, u"MAIL"_s}});
    EXPECT_EQ(str(node->renamedNameStorage().value_or(u"none"_s)), "MAIL");
}

TEST_F(TimeStoreNodeTest, displayRenamingWithoutAName_endsTheRenaming) {
    const auto node = makeNode(u"Mail"_s);
    node->setRenamedNameFormatted({{kRecordName, u"Post"_s}});
    node->setRenamedNameFormatted({});
    EXPECT_FALSE(node->renamedNameStorage());
}

TEST_F(TimeStoreNodeTest, displayRenamingToNothingButText_isARenaming) {
    const auto node = makeNode(u"Mail"_s);
    node->setRenamedNameFormatted({{kRecordName, u""_s}});
    EXPECT_EQ(node->renamedNameStorage(), u""_s);
    EXPECT_EQ(str(node->renamedName()), "");
}

TEST_F(TimeStoreNodeTest, displayRenaming_isToldAsSortNameAlone) {
    const auto node = makeNode(u"Mail"_s);
    const Announcements told(*node, {kNameKey, kRenamedNameKey, kRenamedNameFormattedKey, kSortNameKey});
    node->setRenamedNameFormatted({{kRecordName, u"Post"_s}});
    EXPECT_EQ(told.told(), "will sortName, did sortName");
}

TEST_F(TimeStoreNodeTest, time_isAddedAlsoWhenNegativeAndToldAsItsTextAlone) {
    const auto node = makeNode(u"Mail"_s, 60.0);
    const Announcements told(*node, {kActiveTimeStringKey, ObservedKey{"activeTime"}, kNameKey});
    node->addTimeInterval(1.5);
    node->addTimeInterval(-0.25);
    EXPECT_EQ(node->activeTime(), 61.25);
    EXPECT_EQ(str(node->activeTimeString()), "00:01:01");
    EXPECT_EQ(told.told(),
              "will activeTimeString, did activeTimeString, will activeTimeString, did activeTimeString");
}

TEST_F(TimeStoreNodeTest, theRecord_hasItsEntriesInOrder) {
    const auto node = makeNode(u"Mail"_s, 12.5);
    node->setUuid(Identity::fromBytes(m_bytes));
    EXPECT_EQ(entries(node->dictionaryRepresentation()),
              "Name=Mail, ActiveTime=12.5, UUID=00112233445566ff, Branched=0");
    node->setBranched(true);
    node->setRenamedNameStorage(u"Post"_s);
    EXPECT_EQ(entries(node->dictionaryRepresentation()),
              "Name=Mail, ActiveTime=12.5, UUID=00112233445566ff, Branched=1, Renamed Name=Post");
}

TEST_F(TimeStoreNodeTest, theTypesOfTheRecord_areThoseOfTheFile) {
    const auto record = makeNode(u"Mail"_s, 12)->dictionaryRepresentation();
    EXPECT_TRUE(record.value(kRecordName).asString());
    EXPECT_TRUE(record.value(kRecordActiveTime).asReal());
    EXPECT_TRUE(record.value(kRecordUUID).asData());
    EXPECT_TRUE(record.value(kRecordBranched).asBoolean());
}

TEST_F(TimeStoreNodeTest, aNodeWithoutIdentity_writesExactlyTwoEntries) {
    const auto node = makeNode(u"Mail"_s, 3.0);
    node->setRenamedNameStorage(u"Post"_s);
    node->setUuid(std::nullopt);
    EXPECT_EQ(entries(node->dictionaryRepresentation()), "Name=Mail, ActiveTime=3");
}

TEST_F(TimeStoreNodeTest, aRecord_comesBackAsItWasWritten) {
    const auto node = makeNode(u"Mail"_s, 0.1 + 0.2);
    node->setBranched(true);
    node->setRenamedNameStorage(u"Post"_s);
    const auto again = fromRecord(node->dictionaryRepresentation());
    EXPECT_EQ(again->dictionaryRepresentation(), node->dictionaryRepresentation());
    EXPECT_EQ(again->activeTime(), 0.1 + 0.2);
}

TEST_F(TimeStoreNodeTest, aRecordWithAnIdentity_overwritesTheRegistry) {
    const auto before = makeNode(u"Mail"_s);
    const auto read = fromRecord({{kRecordName, u"Mail"_s}, {kRecordUUID, m_bytes}});
    const auto after = makeNode(u"Mail"_s);
    EXPECT_EQ(read->uuid(), Identity::fromBytes(m_bytes));
    EXPECT_EQ(after->uuid(), read->uuid());
    EXPECT_NE(before->uuid(), read->uuid());
}

TEST_F(TimeStoreNodeTest, aRecordWithoutAnIdentity_takesTheRegistrysAndAsksForNoWrite) {
    const auto known = registry.uuidForName(u"TimeStoreNodeMail"_s);
    EXPECT_EQ(fromRecord({{kRecordName, u"Mail"_s}})->uuid(), known);
    EXPECT_EQ(fakes.runLoop.activeTimers(), 0);
}

TEST_F(TimeStoreNodeTest, anIdentityOfAnotherLength_countsAsAbsentAndIsLogged) {
    const auto known = registry.uuidForName(u"TimeStoreNodeMail"_s);
    for (const int length : {0, 7, 9, 16}) {
        const auto node = fromRecord({{kRecordName, u"Mail"_s}, {kRecordUUID, QByteArray(length, 'x')}});
        EXPECT_EQ(node->uuid(), known);
        EXPECT_TRUE(fakes.log.mentions(u"%1 bytes"_s.arg(length)));
    }
}

TEST_F(TimeStoreNodeTest, aHostileRecord_isReadAsFarAsItMakesSense) {
    const PropertyListArray wrong{
        7, true, 1.5, m_bytes, PropertyListArray{1}, PropertyListDictionary{{u"a"_s, 1}}, Date(), u"text"_s};
    for (const QString& key :
         {kRecordName, kRecordActiveTime, kRecordUUID, kRecordBranched, kRecordRenamedName})
        for (const PropertyListValue& value : wrong) {
            PropertyListDictionary record{{kRecordName, u"Mail"_s}, {kRecordActiveTime, 5.0}};
            record.insert(key, value);
            const auto node = fromRecord(record);
            EXPECT_GE(node->activeTime(), 0) << str(key);
            EXPECT_TRUE(node->uuid()) << str(key);
            EXPECT_TRUE(key == kRecordName || node->name() == u"Mail") << str(key);
        }
}

TEST_F(TimeStoreNodeTest, branchedInARecord_isAnyNumberButZero) {
    EXPECT_TRUE(fromRecord({{kRecordBranched, true}})->branched());
    EXPECT_TRUE(fromRecord({{kRecordBranched, 1}})->branched());
    EXPECT_FALSE(fromRecord({{kRecordBranched, 0}})->branched());
    EXPECT_FALSE(fromRecord({{kRecordBranched, u"true"_s}})->branched());
}

TEST_F(TimeStoreNodeTest, anEmptyRecord_isANodeWithoutNameAndTime) {
    const auto node = fromRecord({});
    EXPECT_EQ(str(node->name()), "");
    EXPECT_EQ(node->activeTime(), 0);
    EXPECT_EQ(node->uuid(), registry.uuidForName(u"TimeStoreNode"_s));
}

TEST_F(TimeStoreNodeTest, childrenGivenToANodeThatHasNone_areIgnored) {
    const auto node = makeNode(u"Mail"_s);
    node->addChildFromDictionary({{kRecordName, u"Inbox"_s}});
    EXPECT_FALSE(node->children());
    const auto app = makeApp(u"Mail"_s);
    const auto inbox = window(*app, "Inbox");
    inbox->addChildFromDictionary({{kRecordName, u"Inbox"_s}});
    EXPECT_FALSE(inbox->children());
}

TEST_F(TimeStoreNodeTest, aWindow_describesItselfWithItsTime) {
    const auto app = makeApp(u"Mail"_s);
    EXPECT_EQ(str(window(*app, "Inbox", 1.5)->description()), "(Inbox -> 1.500000)");
}

TEST_F(TimeStoreNodeTest, anObserverThatDropsTheLastShareWhileTold_doesNoHarm) {
    auto node = makeNode(u"Mail"_s);
    const auto subscription = node->observe(kSortNameKey, [&](const ObservedChange&) { node.reset(); });
    node->setRenamedNameFormatted({{kRecordName, u"Post"_s}});
    EXPECT_FALSE(node);
}

} // namespace
