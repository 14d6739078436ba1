#!/usr/bin/env python3
"""Edits real pages with the scripted editor and compares bytes: realpages.py --program FILE --cache FOLDER

Each page is opened, coloured, gets a pair of tags in its middle that is undone again, then some typed words, and is saved.
Every byte outside the typed words and the generator tag must be the one that the page came with, save in pages of which the
program has said that they hold characters outside their set; those must be changed just as national letters are exchanged."""
import argparse
import json
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

import charsets
import packages

WANTED = 30
SKIPPED = 77
GENERATOR = b'<META HTTP-EQUIV="Generator" CONTENT="Morlan7 wersja 1.5 Final (C)1997/1998">'
WORDS = "Zażółć gęślą jaźń"
LOOKS_LIKE_A_PAGE = 200  # characters in which "<html>" must stand
FOREIGN = 'status "Plik zawiera znaki spoza zestawu; zapis może je zmienić"'
KINDS = {"frames": rb"<i?frame", "tables": rb"<table", "scripts": rb"<script", "UTF-8": rb"charset=.?utf-8"}


def windows_1250(text):
    """The bytes of a text of the editor; the codes that Windows-1250 leaves free stand for themselves."""
    return b"".join(bytes([ord(c)]) if ord(c) < 256 and not c.encode("cp1250", "ignore") else c.encode("cp1250") for c in text)


def session(program, lines, profile):
    script = "".join(line + "\n" for line in lines)
    done = subprocess.run([program, "--profile", str(profile), "-"], input=script.encode(), capture_output=True, timeout=120)
    return done.returncode, done.stdout.decode().splitlines()


def written_text(lines):
    return windows_1250(json.loads(next(line for line in lines if line.startswith('text "'))[len("text "):]))


def generator_fault(original, loaded):
    """What is wrong with a loaded page against its file, the generator tag aside; None when nothing is."""
    if b"<html>" not in original[:LOOKS_LIKE_A_PAGE].lower():
        return None if loaded == original else "a text that is no page was changed"
    if loaded.count(GENERATOR) != 1:
        return f"{loaded.count(GENERATOR)} generator tags"
    front, back = loaded.split(GENERATOR)
    if original.startswith(front) and original.endswith(back):
        replaced = original[len(front):len(original) - len(back)]
        if re.fullmatch(rb"<meta[^>]*generator[^>]*>", replaced, re.I | re.S):
            return None
    for before, behind in ((b"\r\n ", b""), (b"<HEAD>\r\n ", b"\r\n</HEAD>")):
        if front.endswith(before) and back.startswith(behind) and front[:len(front) - len(before)] + back[len(behind):] == original:
            return None
    return "the page differs outside the generator tag"


def colours_fault(lines, loaded, is_page):
    runs = [line.split() for line in lines if line.startswith("run ")]
    position = 0
    for run in runs:
        if int(run[1]) != position:
            return f"the colours have a gap at {position}"
        position += int(run[2])
    if position != len(loaded):
        return f"the colours cover {position} of {len(loaded)} characters"
    colours = len({run[3] for run in runs})
    return None if (colours > 1) == is_page else f"{colours} colours"


def middle_of(original):
    """A place for the caret that is not between CR and LF, also when a tag gets in front of it."""
    middle = len(original) // 2
    return middle + 1 if original[middle - 1:middle + 1] == b"\r\n" else middle


def fault_of(program, page, work, affected):
    original = page.read_bytes()
    copy = work / "strona.html"
    copy.write_bytes(original)
    profile = work / "profile"
    where = json.dumps(str(copy))
    status, lines = session(program, [f"open {where}", "text"], profile)
    if status != 0:
        return f"opening: {lines[-1] if lines else status}"
    loaded = written_text(lines)
    text, symbols = charsets.read(original)
    comes_back = charsets.written(text, symbols) == original
    if (FOREIGN in lines) == comes_back:
        return "opening: the program warns of nothing" if comes_back else "opening: the program does not warn"
    if not comes_back:
        affected.append(page)
    fault = generator_fault(text, loaded)
    if fault:
        return "opening: " + fault

    caret = middle_of(loaded)
    pair = [f"caret {caret}", "toolbar Toolbar1 bold", "undo", "undo", "text"]
    words = [f"caret {caret}", f"type {json.dumps(WORDS, ensure_ascii=False)}", "menu xmn_save", "documents"]
    status, lines = session(program, [f"open {where}", "colours", *pair, *words], profile)
    if status != 0:
        return f"editing: {lines[-1] if lines else status}"
    fault = colours_fault(lines, loaded, b"<html>" in original[:LOOKS_LIKE_A_PAGE].lower())
    if fault:
        return "colouring: " + fault
    if written_text(lines) != loaded:
        return "the insertion is not undone"
    if not any(line.startswith("document ") and " saved" in line for line in lines):
        return "the page is not saved"
    expected = charsets.written(loaded[:caret] + windows_1250(WORDS) + loaded[caret:], symbols)
    return None if copy.read_bytes() == expected else "the saved file differs outside the edit"


def check(program, pages):
    failed, affected = 0, []
    with tempfile.TemporaryDirectory() as folder:
        for number, page in enumerate(pages):
            work = pathlib.Path(folder) / str(number)
            work.mkdir()
            try:
                fault = fault_of(program, page, work, affected)
            except subprocess.TimeoutExpired:
                fault = "no answer in time"
            if fault:
                failed += 1
                print(f"FAILED {page}: {fault}")
            shutil.rmtree(work)
    for page in affected:
        print(f"would come back changed: {page}")
    return failed


def main():
    arguments = argparse.ArgumentParser()
    arguments.add_argument("--program", required=True)
    arguments.add_argument("--cache", required=True, type=pathlib.Path)
    options = arguments.parse_args()
    options.cache.mkdir(parents=True, exist_ok=True)
    pages = packages.fetch(options.cache.resolve()) if shutil.which("apt-get") and shutil.which("dpkg-deb") else []
    if len(pages) < WANTED:
        print(f"SKIPPED: only {len(pages)} pages could be fetched through apt-get, {WANTED} are needed")
        return SKIPPED
    contents = [page.read_bytes().lower() for page in pages]
    for kind, pattern in KINDS.items():
        print(f"{sum(1 for content in contents if re.search(pattern, content))} pages with {kind}")
    sizes = sorted(len(content) for content in contents)
    print(f"{len(pages)} pages of {sizes[0]} to {sizes[-1]} bytes")
    failed = check(options.program, pages)
    print(f"{len(pages) - failed} passed, {failed} failed")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
