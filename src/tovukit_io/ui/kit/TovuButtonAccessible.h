#pragma once

// What a screen reader sees of a TovuButton: a radio button when it carries a radio mark,
// a check box when it is otherwise checkable, else a button; its title or accessible name;
// its checked state; and press and toggle actions that do what a click does, so a screen
// reader's "toggle" chooses an option as a tap would (Qt's own button interface would only
// flip the checked state behind the page's back). Internal to the widget kit.
class TovuButtonAccessible
{
public:
    /// Registers the interface factory; the kit's buttons call it, once is enough.
    static void install();

    TovuButtonAccessible() = delete;
};
