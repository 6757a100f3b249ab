#!/usr/bin/env python3
"""Names each text of the given .ts files that has no finished translation, or one whose places
(%1, %n), mnemonic (&), or blanks at its ends aren't those of the English text; and each page of the
help that a language has other tags of, or lacks although it has some."""
import glob
import os
import re
import sys
import xml.etree.ElementTree as ElementTree


def faults(message):
    english = message.findtext("source")
    translation = message.find("translation")
    texts = [form.text or "" for form in translation.iter("numerusform")] or [translation.text or ""]
    if translation.get("type") or not all(texts):
        yield "is missing"
        return
    for text in texts:
        # The form for one may say its number in words.
        places = [sorted(set(re.findall(r"%L?\d", each))) for each in (english, text)]
        if places[0] != places[1] or "%n" in text and "%n" not in english:
            yield f"has other places: {text!r}"
        if len(re.findall(r"&(?!&)\w", english)) != len(re.findall(r"&(?!&)\w", text)):
            yield f"has another mnemonic: {text!r}"
        if any(edge(english) != edge(text) for edge in (lambda t: t[:1] == " ", lambda t: t[-1:] == " ")):
            yield f"has other blanks at its ends: {text!r}"
    if re.search(r"%L?n", english) and not re.search(r"%L?n", texts[-1]):
        yield f"has lost its number: {texts[-1]!r}"


def tags(page):
    with open(page, encoding="utf-8") as text:
        return [" ".join(tag.split()) for tag in re.findall("<[^>]+>", text.read())]


def pages_at_fault():
    for language in glob.glob("assets/help/??/"):
        for page in glob.glob("assets/help/*.html") + glob.glob("assets/help/games/*.html"):
            own = language + os.path.relpath(page, "assets/help")
            if not os.path.exists(own):
                yield f"{own} is missing"
            elif tags(own) != tags(page):
                yield f"{own} has other tags than {page}"


found = False
for page in pages_at_fault():
    found = True
    print(page)
for file in sys.argv[1:]:
    for context in ElementTree.parse(file).getroot().iter("context"):
        for message in context.iter("message"):
            for fault in faults(message):
                found = True
                name = file.rsplit("/", 1)[-1]
                print(f"{name}: {context.findtext('name')}: {message.findtext('source')!r} {fault}")
sys.exit(found)
