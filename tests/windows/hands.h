#pragma once

#include <QString>

#include "../desktop/fixture.h"

/// What a person does, in words: one line for each act.
namespace varnello::test {

/// Does it, through real events of the mouse and the keyboard. A window that opens may have closed
/// again when this returns. Returns what is wrong with the line, or nothing.
///
///     click CAPTION               a button, a check box, a tab, an item of an open menu
///     choose COMBO = TEXT         by the keyboard
///     pick LIST = TEXT            the row with a cell of this text
///     open LIST = TEXT            the same with a double click
///     tick LIST = TEXT            turns the tick of a row
///     menuof LIST = TEXT          the menu of a row
///     sort LIST = COLUMN          a click on the title
///     key KEYS, type TEXT         to what has the focus
///     follow LINK                 of a page of the help, by its target
///     go NAME                     gives it the focus
///     menu ITEM                   an item of the menu bar
///     close                       the close box of the window in front
///     file NAME, colour NAME      in the toolkit's own dialogs
///     drop PILE SLOT              the last card of a pile of the tableau onto a reserve slot
///     lay CARD LEFT TOP           its corner at these twips, with what lies on it
///     point PILE|stock            moves the mouse onto the last card
///     wheel up|down [Ctrl]        over the table
///     stock                       a click on the stock
///     start NUMBER GAME, end, almost NUMBER, player NAME, set KEY = VALUE, write FILE = LINE,
///     clock MINUTES, copied TEXT, listen
///                                 what happens apart from the windows; a screen reader listens
QString Do(const QString& act, WindowFixture& fixture);

}  // namespace varnello::test
