# SPDX-License-Identifier: MIT
"""The texts that the program shows beside its tables, read from the sources: messages, questions, captions.

A message composed of parts is compared part by part, so that its variable parts may be anything.
"""

import re

from manual_text import ROOT

SRC = ROOT / "src"
LITERAL = re.compile(r'"((?:[^"\\\n]|\\.)*)"')
ADJACENT = re.compile(r'"\s*\n?\s*"')
# Files that contain only such texts.
LISTS = ("platform/numbers/runtime_error.cpp", "data/rain_database.cpp", "app/mero/qt_desk.cpp",
         "app/mero/save_dialog.cpp", "platform/mod_reg_settings.cpp", "qt/number_messages.cpp",
         "qt/grid_clipboard.cpp")
STATEMENT = re.compile(
    r"\b(?:message|error|showMessage)\((?:[^;\"]|\"(?:[^\"\\\n]|\\.)*\")*;", re.DOTALL)
# Captions beside a field, in the order of the arguments: a control, then the caption.
CAPTION = re.compile(r"\.(?:text|input|result|area|widget)\(\s*(?:[\w.\[\]]+,\s*)?QStringLiteral\(\"([^\"]+)\"\)")
SHORTEST = 4


def without_comments(text: str) -> str:
    return re.sub(r"//[^\n]*", "", text)


def joined(text: str) -> str:
    """Adjacent literals as one."""
    return ADJACENT.sub("", text)


def is_message(literal: str) -> bool:
    """True for texts for people: longer than a connecting part, with a blank in it, or with a Czech letter."""
    return len(literal.strip()) >= SHORTEST and (" " in literal.strip() or not literal.isascii())


def parts(text: str) -> list[str]:
    """The parts of a text between its line breaks and the values put into it."""
    return [part.strip() for part in re.split(r"\\r\\n|\\n|%\d", text) if is_message(part)]


def literals(code: str) -> list[str]:
    return [part for literal in LITERAL.findall(joined(code)) for part in parts(literal)]


def message_texts(verdicts: dict[str, str]) -> list[tuple[str, str]]:
    """Code or file, and text, of each message, run-time error and question."""
    found = [(code, part) for code, text in verdicts.items() for part in parts(text)]
    for file in sorted(SRC.rglob("*.cpp")):
        name = file.relative_to(SRC).as_posix()
        code = without_comments(file.read_text(encoding="utf-8"))
        code = re.sub(r"^#include.*$", "", code, flags=re.MULTILINE)
        if name in LISTS:
            code = re.sub(r"static_assert\(.*?\);", "", code, flags=re.DOTALL)
            found += [(name, text) for text in literals(code)]
        elif name.startswith(("forms/", "app/mero/")):
            for statement in STATEMENT.findall(joined(code)):
                found += [(name, text) for text in literals(statement)]
    return found


def sentences() -> list[tuple[str, str]]:
    """File and text of each other sentence in the window: notes, warnings, the page for a missing file."""
    found = []
    for file in sorted([*SRC.glob("forms/**/*.cpp"), *SRC.glob("picture/*.cpp"), *SRC.glob("qt/*.cpp"),
                        *SRC.glob("app/mero/*.cpp")]):
        code = without_comments(file.read_text(encoding="utf-8"))
        for text in literals(re.sub(r"</?\w+>", "\" \"", code)):
            if not text.isascii() and text.endswith((".", "!")):
                found.append((file.relative_to(SRC).as_posix(), text))
    return found


def caption_texts() -> list[tuple[str, str]]:
    """File and text of each caption that is written in a layout instead of a table."""
    return [(file.relative_to(SRC).as_posix(), caption)
            for file in sorted(SRC.glob("forms/**/layout/*.cpp"))
            for caption in CAPTION.findall(file.read_text(encoding="utf-8"))]
