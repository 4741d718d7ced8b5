// SPDX-License-Identifier: MIT
#pragma once

#include <QStyleOptionViewItem>

class QAbstractItemView;

// Which of several outlines the keys go to, to be seen by its selection.
namespace KeyHolder {

// Whether the keys go to the view, or to an editor in it.
bool holdsKeys(const QAbstractItemView& view);
// Makes the selection of a view paler while the keys go elsewhere. Its texts stay easy to read.
void paleUnlessHolder(const QAbstractItemView& view, QStyleOptionViewItem& option);
// For the arrows that open rows: styles draw them in the colour of texts, even on a selection where it is not seen.
void inkOnSelection(QStyleOptionViewItem& option);

} // namespace KeyHolder
