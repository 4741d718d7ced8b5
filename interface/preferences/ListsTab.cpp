// SPDX-License-Identifier: MIT
#include "interface/preferences/ListsTab.h"

#include "Classes/common/Settings.h"
#include "interface/preferences/SettingsBinding.h"
#include "interface/shell/PlainText.h"
#include "platform/foundation/text/LocalizedStrings.h"

#include <QCheckBox>
#include <QVBoxLayout>

namespace {

constexpr int kMargin = 18;

} // namespace

ListsTab::ListsTab(SettingsBinding& settings) {
    setObjectName(QStringLiteral("Lists"));
    const struct {
        const char* name;
        QString text;
        const QString& key;
    } choices[] = {
        {"listIcons", localized("Icons of &programs"), kListIcons},
        {"listShareBars", localized("A &bar behind each time"), kListShareBars},
        {"listShortTitles", localized("Titles without their program’s &name"), kListShortTitles},
        {"listProjectTimes", localized("Times of pro&jects in the sidebar"), kListProjectTimes},
    };
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    rows->addWidget(new PlainLabel(localized("Timers and projects show:")));
    for (const auto& choice : choices) {
        auto* box = new QCheckBox(choice.text);
        box->setObjectName(QLatin1String(choice.name));
        settings.bind(*box, choice.key);
        rows->addWidget(box);
    }
    rows->addStretch(1);
}
