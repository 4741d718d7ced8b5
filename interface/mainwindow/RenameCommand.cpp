// SPDX-License-Identifier: MIT
#include "interface/mainwindow/RenameCommand.h"

#include "interface/outline/TKAppDisplayFormatter.h"
#include "platform/foundation/CleanText.h"
#include "platform/foundation/LocalizedStrings.h"

RenameCommand::RenameCommand(std::shared_ptr<TimeStoreItem> item, const QString& name)
    : m_item(std::move(item))
    , m_oldName(m_item->renamedName())
    , m_newName(name.isEmpty() ? m_item->name() : cleanText(name)) {
    setText(localized("Rename"));
}

void RenameCommand::redo() {
    m_item->setRenamedNameFormatted(TKAppDisplayFormatter::objectValueForString(m_newName));
}

void RenameCommand::undo() {
    m_item->setRenamedNameFormatted(TKAppDisplayFormatter::objectValueForString(m_oldName));
}
