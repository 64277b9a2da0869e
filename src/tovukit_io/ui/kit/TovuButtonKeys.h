#pragma once

class TovuButton;

// Where arrow keys take the keyboard from a TovuButton. Internal to the widget kit.
namespace TovuButtonKeys {

/// The next (or previous) button of `from`'s group in reading order: a sibling of the same
/// kind (checkable alike, same mark) in the same row for Left and Right, the same column for
/// Up and Down. Null at either end, so the keys never leave the group.
TovuButton *neighbour(const TovuButton &from, int key);

} // namespace TovuButtonKeys
