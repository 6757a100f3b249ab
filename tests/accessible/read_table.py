#!/usr/bin/python3
"""read_table.py PROGRAM: plays in the program's window by mouse and keys and reads over the
accessibility bus what a screen reader would. Run it on a display and a session bus of its own; with
--dump every window's tree is printed."""
import os
import re
import subprocess
import sys
import tempfile
import time

import pyatspi
from gi.repository import GLib

WAIT = 20  # seconds for anything that is expected
NUMBER = 2081  # a deal of Freecell of which so many cards can go up at once:
CASCADE = 4

heard = []  # what was announced


def until(what, find):
    """What find() returns as soon as it is true; meanwhile the bus is listened to."""
    end = time.monotonic() + WAIT
    while time.monotonic() < end:
        listen(0.05)
        try:
            found = find()
        except Exception:  # a node that has just gone
            found = None
        if found:
            return found
    sys.exit(f"It didn't come to this: {what}.\nheard: {heard}\n{dump(program())}")


def listen(seconds):
    over = []
    GLib.timeout_add(int(1000 * seconds), lambda: over.append(True))
    while not over:
        GLib.MainContext.default().iteration(True)


def nodes(node):
    yield node
    for i in range(node.childCount):
        child = node[i]
        if child is not None:
            yield from nodes(child)


def program():
    desktop = pyatspi.Registry.getDesktop(0)
    for i in range(desktop.childCount):
        if desktop[i] is not None and desktop[i].name == "Varnello":
            return desktop[i]
    return None


def find(role, name):
    """The first node of a role whose name matches a pattern."""
    app = program()
    for node in nodes(app) if app else ():
        if node.getRoleName() == role and re.fullmatch(name, node.name):
            return node
    return None


def dump(node, indent=0):
    if node is None:
        return "nothing"
    text = "  " * indent + f"{node.getRoleName()}: {node.name!r}"
    if node.description:
        text += f" ({node.description})"
    text += "\n"
    for i in range(node.childCount):
        text += dump(node[i], indent + 1)
    return text


def bounds(node):
    box = node.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
    return box.x, box.y, box.width, box.height


def xdo(*arguments):
    subprocess.run(["xdotool", *map(str, arguments)], check=True)


def key(name):
    xdo("key", "--clearmodifiers", name)


def middle(node):
    left, top, width, height = bounds(node)
    return left + width // 2, top + height // 2


def drag(card, pile):
    xdo("mousemove", *middle(card), "mousedown", 1)
    x, y = middle(pile)
    xdo("mousemove", x - 5, y, "mousemove", x, y, "mouseup", 1)


def top_card(pile):
    return pile[pile.childCount - 1]


def require(right, what):
    if not right:
        sys.exit(f"wrong: {what}\nheard: {heard}\n{dump(program())}")


def check_deal():
    table = find("panel", "Card table")
    require(table is not None, "there is no table")
    piles = [table[i] for i in range(table.childCount)]
    names = [pile.name for pile in piles]
    require(len(piles) == 8 + 4 + 4, f"piles: {names}")
    require(re.fullmatch(r"Tableau 1, 7 cards, top \w+ of \w+", names[0]), names[0])
    require(names[8:] == [f"Reserve {i}, empty" for i in (1, 2, 3, 4)]
            + [f"Foundation {i}, empty" for i in (1, 2, 3, 4)], names)
    cards = [card.name for pile in piles for card in pile]
    require(len(set(cards)) == 52 and "closed card" not in cards, cards)
    for place, pile in enumerate(piles):
        require(pile.getIndexInParent() == place, f"{pile.name} stands at {pile.getIndexInParent()}")
        for position, card in enumerate(pile):
            require(card.getIndexInParent() == position, f"{card.name} of {pile.name}")
            states = card.getState()
            require(states.contains(pyatspi.STATE_READ_ONLY)
                    and states.contains(pyatspi.STATE_SHOWING), f"{card.name}: {states.getStates()}")
    card = piles[2][1]
    require(card.description == "Tableau 3, card 2 of 7", card.description)
    left, top, width, height = bounds(card)
    require((width, height) == (71, 96), bounds(card))
    below = bounds(piles[2][2])
    require(below[0] == left and 10 < below[1] - top < 40, f"{below} under {bounds(card)}")
    hit = table.queryComponent().getAccessibleAtPoint(left + 5, top + 5, pyatspi.DESKTOP_COORDS)
    require(hit is not None and hit.name == card.name, f"at the card: {hit}")
    return table


def play(show):
    until("the selector", lambda: find("tree", "Games"))
    player = find("combo box", "Player1")
    labels = [relation.getTarget(0).name for relation in player.getRelationSet()
              if relation.getRelationType() == pyatspi.RELATION_LABELLED_BY]
    require(labels == ["Player"], f"the player's list is labelled {labels}")
    show()
    key("Escape")
    until("no selector", lambda: not find("tree", "Games"))
    key("F2")
    until("any deal", lambda: heard[-1].startswith("Freecell, game number "))
    # A deal of which several cards can go up at once.
    heard.clear()
    key("shift+F2")
    until("the box for the number", lambda: find("text", "Enter a Game Number.*"))
    xdo("type", NUMBER)
    key("Return")
    until("a deal", lambda: heard == [f"Freecell, game number {NUMBER}, is dealt."])
    table = check_deal()
    counters = until("the counters", lambda: find("label", r"Score :.*Time :.*Moves :0"))
    require(bounds(counters)[2] > 50, f"counters at {bounds(counters)}")
    last = counters.parent.childCount - 1
    require(counters.getIndexInParent() == last, f"counters at {counters.getIndexInParent()}")

    # A card into a cell, and back again.
    heard.clear()
    card = top_card(table[0])
    moved = card.name
    drag(card, table[8])
    until("the move", lambda: heard == [f"{moved} moved to Reserve 1."])
    until("its pile's name", lambda: table[8].name == f"Reserve 1, 1 card, {moved}")
    require(table[0].childCount == 6 and table[8][0].name == moved, "the card isn't there")
    require(bounds(table[8][0]) == bounds(table[8]), "the card isn't drawn there")
    until("one move", lambda: find("label", r"Score :.*Moves :1"))
    heard.clear()
    key("ctrl+z")
    until("the way back", lambda: heard == [f"{moved} was taken back to Tableau 1."])
    until("an empty pile", lambda: table[8].name == "Reserve 1, empty")

    # All that goes up by itself is told at once.
    heard.clear()
    key("F7")
    until("a cascade", lambda: re.fullmatch(f"{CASCADE} cards went up to the foundations.", heard[0]))
    until("its cards", lambda: sum(table[i].childCount for i in range(12, 16)) == CASCADE)
    key("ctrl+z")
    until("a card back", lambda: len(heard) == 2 and " was taken back to Tableau " in heard[1])

    # Many moves at once are summed up.
    for reserve in (8, 9):
        heard.clear()
        drag(top_card(table[0]), table[reserve])
        until("a card more in a cell", lambda: heard)
    heard.clear()
    key("ctrl+c")
    until("all taken back", lambda: heard == ["6 cards were taken back."])
    key("ctrl+v")
    until("all once more", lambda: heard[1:] == [
        f"2 cards moved. {CASCADE} cards went up to the foundations."])
    key("ctrl+F1")
    until("the end", lambda: heard[2:] == ["The game is over."])
    key("F2")
    until("the next deal", lambda: re.fullmatch("Freecell, game number .*, is dealt.", heard[3]))

    # A report is read row by row.
    key("F4")
    key("ctrl+Tab")
    games = until("the games' report", lambda: find("table", "Games")).queryTable()
    require(games.getRowDescription(1) == "2" and games.getColumnDescription(0) == "Game",
            f"{games.getRowDescription(1)}, {games.getColumnDescription(0)}")
    require(games.getAccessibleAt(18, 1).name == "2", games.getAccessibleAt(18, 1).name)
    key("Escape")

    # The menus by key, and the help as a window of its own.
    key("F10")
    until("an open menu",
          lambda: find("menu item", "New Game").getState().contains(pyatspi.STATE_SHOWING))
    key("Escape")
    key("Escape")
    key("F1")
    until("the help window", lambda: find("frame", ".*Freecell.*"))
    show()


def on_description(event):
    if event.source.name == "Card table":
        heard.append(event.source.description)


def run(home, game, play):
    os.makedirs(home + "/Varnello")
    with open(home + "/Varnello/Varnello.ini", "w", encoding="utf-8") as settings:
        settings.write(f"[Data]\nLastGName={game}\nAutoplay=0\nSoundStart=0\n")
    environment = dict(os.environ, XDG_CONFIG_HOME=home, XDG_DATA_HOME=home,
                       QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", QT_QPA_PLATFORM="xcb")
    process = subprocess.Popen([sys.argv[-1]], env=environment)
    try:
        play()
    finally:
        process.terminate()
        process.wait()


def main():
    pyatspi.Registry.registerEventListener(
        on_description, "object:property-change:accessible-description")
    show = (lambda: print(dump(program()))) if "--dump" in sys.argv else lambda: None
    with tempfile.TemporaryDirectory() as home:
        run(home, "Freecell", lambda: play(show))
    print("The table can be read.")


main()
