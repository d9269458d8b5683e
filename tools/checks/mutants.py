# SPDX-License-Identifier: MIT
"""Makes the mutants of a C++ source: copies with one operator, constant, condition or statement changed.

The sources are formatted (binary operators stand between blanks, the brackets of templates do not), so a list of
tokens is enough to tell a comparison from a template and a product from a pointer.
"""

import re
from dataclasses import dataclass

TOKEN = re.compile(
    r"""
    (?P<comment>//[^\n]*|/\*.*?\*/)
    | (?P<directive>^[ \t]*\#[^\n]*)
    | (?P<text>"(?:\\.|[^"\\\n])*")
    | (?P<char>'(?:\\.|[^'\\\n])')
    | (?P<number>(?:\d[\d']*\.?\d*|\.\d+)(?:[eE][+-]?\d+)?[fFuUlL]*)
    | (?P<name>[A-Za-z_]\w*(?:::[A-Za-z_]\w*)*)
    | (?P<operator><=>|<<=|>>=|->|\+\+|--|&&|\|\||[-+*/%=!<>]=|\[\[|\]\]|::|[-+*/%=!<>?:;,.(){}\[\]&|~^])
    """,
    re.VERBOSE | re.DOTALL | re.MULTILINE,
)

# Replaces each operator by its boundary case and by its opposite.
BINARY = {
    "+": ("-",), "-": ("+",), "*": ("/",), "/": ("*",), "%": ("*",),
    "<": ("<=", ">="), "<=": ("<", ">"), ">": (">=", "<="), ">=": (">", "<"),
    "==": ("!=",), "!=": ("==",), "&&": ("||",), "||": ("&&",),
    "+=": ("-=",), "-=": ("+=",), "*=": ("/=",), "/=": ("*=",),
}
NAMES = {"true": "false", "false": "true", "min": "max", "max": "min"}
# A statement that begins with one of these cannot be removed.
NO_PLAIN_STATEMENT = {
    "return", "if", "else", "for", "while", "do", "switch", "case", "default", "using", "namespace", "struct", "class",
    "enum", "template", "const", "constexpr", "inline", "static", "auto", "static_assert", "public", "private", "try",
    "explicit", "virtual", "operator", "typename", "friend", "break", "assert",
}


@dataclass(frozen=True)
class Token:
    kind: str
    text: str
    begin: int

    @property
    def end(self) -> int:
        return self.begin + len(self.text)


@dataclass(frozen=True)
class Mutant:
    """One change of a source: the characters from `begin` to `end` become `text`."""

    line: int
    code: str  # the line as it stands, without indentation
    change: str
    begin: int
    end: int
    text: str

    def applied(self, source: str) -> str:
        return source[: self.begin] + self.text + source[self.end :]


def tokens_of(source: str) -> list[Token]:
    """The source without comments and preprocessor directives."""
    found = (Token(match.lastgroup, match.group(), match.start()) for match in TOKEN.finditer(source))
    return [token for token in found if token.kind not in ("comment", "directive")]


def changed_numbers(text: str) -> list[str]:
    """Other values for a number: n + 1, n - 1, 0, 2 n."""
    digits = text.rstrip("fFuUlL")
    suffix = text[len(digits) :]
    if re.fullmatch(r"[\d']+", digits):
        value = int(digits.replace("'", ""))
        others = {value + 1, value - 1, 0, 2 * value} - {value}
        return [f"{other}{suffix}" for other in sorted(others) if other >= 0 or not suffix]
    value = float(digits.replace("'", ""))
    others = [f"({text} + 1)", f"({text} - 1)", f"(2 * {text})"] + ([f"(0 * {text})"] if value else [])
    return others if value else others[:2]


def next_char(text: str) -> str | None:
    """The next character after a character literal's; none for an escaped one."""
    return None if "\\" in text or text in ("'&'", "'['") else f"'{chr(ord(text[1]) + 1)}'"


def closing(tokens: list[Token], opening: int) -> int:
    """The position of the bracket that closes the one at `opening`."""
    depth = 0
    for at in range(opening, len(tokens)):
        depth += (tokens[at].text in "([{") - (tokens[at].text in ")]}")
        if depth == 0:
            return at
    return len(tokens) - 1


def is_binary(source: str, token: Token) -> bool:
    """Is this a binary operator? Formatted sources have a blank or a line end on both sides of one."""
    return source[token.begin - 1].isspace() and source[token.end : token.end + 1].isspace()


def is_size(tokens: list[Token], at: int) -> bool:
    """Is this the size of a buffer? A larger one changes nothing; a smaller one fails to compile or fails an
    assertion of the library."""
    return tokens[at - 1].text == "," and tokens[at + 1].text == ">"


def operator_changes(source: str, tokens: list[Token]):
    for at, token in enumerate(tokens):
        if token.kind == "operator":
            if token.text in BINARY and is_binary(source, token):
                yield from ((token.begin, token.end, other) for other in BINARY[token.text])
            elif token.text in ("++", "--"):
                yield token.begin, token.end, "--" if token.text == "++" else "++"
            elif token.text == "!" or (token.text == "-" and not is_binary(source, token)):
                yield token.begin, token.end, ""
        elif token.kind == "number" and not is_size(tokens, at):
            yield from ((token.begin, token.end, other) for other in changed_numbers(token.text))
        elif token.kind == "char":
            other = next_char(token.text)
            if other:
                yield token.begin, token.end, other
        elif token.kind == "name":
            head, _, last = token.text.rpartition("::")
            calls = at + 1 < len(tokens) and tokens[at + 1].text == "("
            if last in ("true", "false") or (last in NAMES and calls):
                yield token.begin, token.end, (f"{head}::" if head else "") + NAMES[last]


def condition_changes(tokens: list[Token]):
    """Replaces a condition of if by true and by false, one of while by false."""
    for at, token in enumerate(tokens[:-1]):
        if token.text in ("if", "while") and tokens[at + 1].text == "(":
            begin, end = tokens[at + 1].end, tokens[closing(tokens, at + 1)].begin
            for other in ("true", "false") if token.text == "if" else ("false",):
                yield begin, end, other


def is_plain_statement(words: list[Token]) -> bool:
    """Is this an assignment, a call or an increment, and no declaration?"""
    first = words[0]
    if first.text in ("++", "--", "*"):
        return True
    if first.kind != "name" or first.text in NO_PLAIN_STATEMENT:
        return False
    if len(words) > 1 and (words[1].kind == "name" or words[1].text in "*&<:"):
        return first.text == "throw"
    return True


def statement_changes(tokens: list[Token]):
    """Removes a statement; of the returns only early ones, inside an if."""
    at = 0
    while at < len(tokens):
        before = tokens[at - 1].text if at else ";"
        if before not in ("{", "}", ";", ":") or tokens[at].text in ("{", "}", ";"):
            at += 1
            continue
        end, depth = at, 0
        while end < len(tokens) and not (depth == 0 and tokens[end].text in (";", "{", "}")):
            depth += (tokens[end].text in ("(", "[")) - (tokens[end].text in (")", "]"))
            end += 1
            if end < len(tokens) and tokens[end].text == "{" and depth > 0:  # a lambda, braces of a value
                end = closing(tokens, end) + 1
        if end >= len(tokens) or tokens[end].text != ";":
            at = end + 1
            continue
        early_return = tokens[at].text == "return" and before == "{" and at > 1 and tokens[at - 2].text == ")"
        # The only statement of a function is its result and no early return, although its block also follows ") {".
        if early_return:
            opening = opening_of(tokens, at - 2)
            early_return = opening > 0 and tokens[opening - 1].text in ("if", "for", "while")
        if early_return or is_plain_statement(tokens[at:end]):
            yield tokens[at].begin, tokens[end].end, ";"
        at = end + 1


def opening_of(tokens: list[Token], closed: int) -> int:
    depth = 0
    for at in range(closed, -1, -1):
        depth += (tokens[at].text == ")") - (tokens[at].text == "(")
        if depth == 0:
            return at
    return 0


def mutants_of(source: str) -> list[Mutant]:
    """All mutants, in source order."""
    tokens = tokens_of(source)
    changes = [*operator_changes(source, tokens), *condition_changes(tokens), *statement_changes(tokens)]
    lines = source.split("\n")
    found = {}
    for begin, end, text in sorted(changes):
        line = source.count("\n", 0, begin)
        code = lines[line].strip()
        column = begin - source.rfind("\n", 0, begin) - 1 - (len(lines[line]) - len(lines[line].lstrip()))
        old = " ".join(source[begin:end].split())
        # Numbers the changes if an operator occurs in a line more than once.
        nth = code.count(old, 0, column) + 1
        place = f" (number {nth})" if code.count(old) > 1 else ""
        change = f"{old} left out{place}" if text in ("", ";") else f"{old} -> {text}{place}"
        found.setdefault((begin, end, text), Mutant(line + 1, code, change, begin, end, text))
    return list(found.values())
