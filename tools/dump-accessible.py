#!/usr/bin/python3
"""dump-accessible.py PROGRAM LANGUAGE: opens every window of the program and prints its tree as a
screen reader finds it over the accessibility bus. A LANGUAGE of "pseudo" is one in which every text
stands in brackets and is one and a half times as long. Run it on a display and a bus of its own:

    tools/on-virtual-display.sh dbus-run-session -- tools/dump-accessible.py build/check/bin/varnello de
"""
import os
import shutil
import subprocess
import sys
import tempfile
import time
import xml.etree.ElementTree as ElementTree

import pyatspi

WAIT = 20  # seconds for a window
PSEUDO = "eo"  # a language that the program doesn't have
SOURCE = os.path.dirname(os.path.abspath(__file__)) + "/../src/desktop/translations/varnello_de.ts"


def write_pseudo(folder):
    """A translation of all texts that the German one has."""
    tree = ElementTree.parse(SOURCE)
    tree.getroot().set("language", PSEUDO)
    for message in tree.getroot().iter("message"):
        english = message.findtext("source")
        pseudo = "[" + english + "o" * (len(english) // 2) + "]"
        translation = message.find("translation")
        for form in list(translation.iter("numerusform")) or [translation]:
            form.text = pseudo
    os.makedirs(folder)
    tree.write(folder + "/pseudo.ts", encoding="utf-8")
    lrelease = shutil.which("lrelease") or "/usr/lib/qt6/bin/lrelease"
    subprocess.run([lrelease, "-silent", folder + "/pseudo.ts",
                    "-qm", f"{folder}/varnello_{PSEUDO}.qm"], check=True)


def program():
    desktop = pyatspi.Registry.getDesktop(0)
    for i in range(desktop.childCount):
        if desktop[i] is not None and desktop[i].name == "Varnello":
            return desktop[i]
    return None


def windows():
    app = program()
    return [app[i] for i in range(app.childCount)] if app else []


def wait_for(what, find):
    end = time.monotonic() + WAIT
    while time.monotonic() < end:
        found = find()
        if found:
            return found
        time.sleep(0.05)
    sys.exit(f"{what} doesn't come")


def dump(node, indent=1):
    if node is None:
        return
    states = [name for state, name in ((pyatspi.STATE_CHECKED, "checked"), (pyatspi.STATE_FOCUSED, "focused"))
              if node.getState().contains(state)]
    labels = [relation.getTarget(0).name for relation in node.getRelationSet()
              if relation.getRelationType() == pyatspi.RELATION_LABELLED_BY]
    print("  " * indent + f"{node.getRoleName()}: {node.name!r}", f"({node.description})" if node.description else "",
          *states, *(f"<- {label!r}" for label in labels))
    for i in range(min(node.childCount, 400)):
        dump(node[i], indent + 1)


def menu_items():
    """The items of all menus, as (menu, item) by their places."""
    main = next(window for window in windows() if any(
        child is not None and child.getRoleName() == "menu bar" for child in window))
    bar = next(child for child in main if child.getRoleName() == "menu bar")
    return main, [list(menu[0]) for menu in bar]


# The items that open a window, by menu and place among what isn't a line.
OPENERS = {"select": (0, 1), "number": (0, 4), "favorites": (3, 1), "play favorites": (3, 2),
           "game statistics": (4, 0), "session": (4, 1), "high scores": (4, 2), "log": (4, 3),
           "customize": (5, 0), "players": (5, 1), "history": (5, 2), "about": (6, 2), "rules": (6, 0)}


def press(menu, place):
    """Presses an item. This doesn't return before the window that it opens is closed."""
    items = [item for item in menu_items()[1][menu] if item.getRoleName() != "separator"]
    items[place].queryAction().doAction(0)


def xdo(*arguments):
    subprocess.run(["xdotool", *arguments], check=True)


def show_all():
    wait_for("the selector", lambda: len(windows()) == 2)
    xdo("key", "Escape")
    wait_for("the main window alone", lambda: len(windows()) == 1)
    press(0, 0)  # a new game
    wait_for("a deal", lambda: "[" in windows()[0].name)
    main = menu_items()[0]
    xdo("mousemove", "640", "450", "click", "1")  # the rest of the deal is shown at once
    wait_for("the counters", lambda: any(child.getRoleName() == "label" and child.name for child in main))
    print("main window")
    dump(main)
    for name, (menu, place) in OPENERS.items():
        pressing = subprocess.Popen([sys.executable, __file__, "press", str(menu), str(place)])
        window = wait_for(name, lambda: next(
            (window for window in windows() if window != main), None))
        time.sleep(0.5)
        print(name)
        dump(window)
        if name == "rules":
            return  # a window of its own, which needn't have the focus
        xdo("key", "Escape")
        wait_for("the end of " + name, lambda: len(windows()) == 1)
        pressing.wait()


def main():
    if sys.argv[1] == "press":
        return press(*map(int, sys.argv[2:]))
    binary, language = sys.argv[1:]
    with tempfile.TemporaryDirectory() as home:
        if language == "pseudo":
            write_pseudo(home + "/varnello/translations")
            language = PSEUDO
        environment = dict(os.environ, XDG_CONFIG_HOME=home, XDG_DATA_HOME=home, LANG=language,
                           LANGUAGE=language, LC_ALL="", QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1",
                           QT_QPA_PLATFORM="xcb")
        os.makedirs(home + "/Varnello")
        with open(home + "/Varnello/Varnello.ini", "w", encoding="utf-8") as settings:
            settings.write("[Data]\nLastGName=Freecell\nAutoplay=0\nSoundStart=0\n")
        process = subprocess.Popen([binary], env=environment)
        try:
            show_all()
        finally:
            process.terminate()
            process.wait()


main()
