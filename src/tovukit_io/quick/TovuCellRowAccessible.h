#pragma once

class TovuCellRowItem;

// What a screen reader sees of a TovuCellRowItem: the row, and one accessible child per
// cell with the role, name, state and actions the row gives it. Internal to the module.
class TovuCellRowAccessible
{
public:
    /// Puts the rows' interface factory before Qt Quick's, which would describe a row as one item.
    static void install();
    /// The cells' checked states may have changed.
    static void notifyStateChanged(TovuCellRowItem *row);
    /// The keyboard is on cell `index` of `row`.
    static void notifyFocus(TovuCellRowItem *row, int index);

    TovuCellRowAccessible() = delete;
};
