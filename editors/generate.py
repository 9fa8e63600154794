#!/usr/bin/env python3
"""Writes the files of the editors that list the verbs and variables of the language: a grammar and snippets for VS Code,
a user-defined language for Notepad++. They are made from the table that makcheck prints.

    editors/generate.py MAKCHECK [--check]

With --check nothing is written; the exit status is 1 where a file is not what would be written.
"""

import json
import pathlib
import re
import subprocess
import sys
from xml.sax.saxutils import escape, quoteattr

EDITORS = pathlib.Path(__file__).resolve().parent
CONTROL = {"ELSE", "ENDIF", "END IF", "DO", "NEXT VJ", "GOTO", "MARK", "STOP", "HOLD", "RAISEERROR"}


def is_control(word):
    return word in CONTROL or word.startswith(("IF ", "LOOP "))


def words_pattern(words):
    """Any of the words, the longest first; a blank in a word is exactly one."""
    return "(?:" + "|".join(re.escape(word).replace("\\ ", " ") for word in sorted(words, key=lambda w: (-len(w), w))) + ")"


def grammar(table):
    words = [verb["word"] for verb in table["verbs"]]
    control = words_pattern(filter(is_control, words))
    other = words_pattern(word for word in words if not is_control(word))
    variables = words_pattern(variable[1:] for variable in table["variables"])
    return {
        "name": "TARVEN Makro",
        "scopeName": "source.tarven-mak",
        "patterns": [
            {"name": "comment.line.tarven-mak", "match": "(?i)^[ \\t]*rem.*$"},
            {
                "match": "(?i)^[ \\t]*(dim) (.*)$",
                "captures": {
                    "1": {"name": "storage.type.tarven-mak"},
                    "2": {"name": "variable.other.tarven-mak"},
                },
            },
            {
                "match": "(?i)^[ \\t]*(mark|goto)(=)(.*)$",
                "captures": {
                    "1": {"name": "keyword.control.tarven-mak"},
                    "2": {"name": "keyword.operator.tarven-mak"},
                    "3": {"name": "entity.name.label.tarven-mak"},
                },
            },
            {
                "begin": f"(?i)^[ \\t]*({control})(?=[=]|$)",
                "beginCaptures": {"1": {"name": "keyword.control.tarven-mak"}},
                "end": "$",
                "patterns": [{"include": "#arguments"}],
            },
            {
                "begin": f"(?i)^[ \\t]*({other})(?=[=]|$)",
                "beginCaptures": {"1": {"name": "support.function.tarven-mak"}},
                "end": "$",
                "patterns": [{"include": "#arguments"}],
            },
            {
                "begin": f"(?i)^[ \\t]*([^=]+)(=)({other}|{control})(?=[(]|$)",
                "beginCaptures": {
                    "1": {"name": "variable.other.tarven-mak"},
                    "2": {"name": "keyword.operator.tarven-mak"},
                    "3": {"name": "support.function.tarven-mak"},
                },
                "end": "$",
                "patterns": [{"include": "#arguments"}],
            },
        ],
        "repository": {
            "arguments": {
                "patterns": [
                    {
                        "name": "string.quoted.single.tarven-mak",
                        "begin": "'",
                        "end": "'|$",
                        "patterns": [{"include": "#values"}],
                    },
                    {"include": "#values"},
                    {"name": "constant.numeric.tarven-mak", "match": "(?<=[=,(])-?[0-9]+(?=[,)]|$)"},
                    {"name": "keyword.operator.tarven-mak", "match": "[=]"},
                    {"name": "punctuation.separator.tarven-mak", "match": "[,()]"},
                ]
            },
            "values": {
                "patterns": [
                    {"name": "variable.language.tarven-mak", "match": f"\\$(?:{variables})"},
                    {"name": "invalid.illegal.tarven-mak", "match": "\\$[A-Za-z]+"},
                    {"name": "constant.other.placeholder.tarven-mak", "match": "%[12]|%MAINWINDOW%"},
                ]
            },
        },
    }


def snippets(table):
    made = {
        "Bedingung": {"prefix": "IF", "body": ["IF ${1:STRCOMP=a,b}", "\t$0", "ENDIF"]},
        "Bedingung mit ELSE": {"prefix": "IF ELSE", "body": ["IF ${1:STRCOMP=a,b}", "\t$2", "ELSE", "\t$0", "ENDIF"]},
        "Matrix durchlaufen": {
            "prefix": "DO MATRIX",
            "body": ["DO", "IF MATRIX.CHECKED", "\t$0", "ENDIF", "LOOP UNTIL MATRIX.EOF"],
        },
        "CSV-Datei durchlaufen": {
            "prefix": "DO CSVFILE",
            "body": ["OPENCSV=${1:Datei},${2:1},${3:;}", "DO", "\t$0", "LOOP UNTIL CSVFILE.EOF"],
        },
        "Liste durchlaufen": {
            "prefix": "DO COUNT",
            "body": ["DO", "IF VJ", "\tSELECTLIST=${1:id},${2:Fenster},1", "\t$0", "ENDIF", "NEXT VJ", "LOOP UNTIL COUNT"],
        },
    }
    for verb in table["verbs"]:
        places = [f"${{{n}:{a['name']}}}" for n, a in enumerate(verb["arguments"], 1) if a["needed"]]
        if places:
            made[verb["word"]] = {"prefix": verb["word"], "body": [f"{verb['word']}={','.join(places)}$0"]}
    return made


def user_defined_language(table):
    def keywords(words):
        # A word with a blank stands in quotes.
        return " ".join(f'"{word}"' if " " in word else word for word in words)

    words = [verb["word"] for verb in table["verbs"]]
    lists = {
        "Comments": '00rem 00REM 00Rem 01 02((EOL)) 03 04',
        "Operators1": "= , ( )",
        "Keywords1": keywords(word for word in words if is_control(word)),
        "Keywords2": keywords(word for word in words if not is_control(word)),
        "Keywords3": " ".join(table["variables"]),
        "Keywords4": "DIM",
        "Delimiters": "00' 01 02((EOL ')) 03 04 05 06 07 08 09 10 11 12 13 14 15 16 17 18 19 20 21 22 23",
        "Folders in code2, open": "DO",
        "Folders in code2, close": "LOOP",
    }
    styles = {
        "DEFAULT": ("000000", 0),
        "COMMENTS": ("008000", 2),
        "LINE COMMENTS": ("008000", 2),
        "NUMBERS": ("FF8000", 0),
        "KEYWORDS1": ("0000FF", 1),
        "KEYWORDS2": ("000080", 1),
        "KEYWORDS3": ("8000FF", 0),
        "KEYWORDS4": ("804000", 1),
        "OPERATORS": ("FF0000", 0),
        "DELIMITERS1": ("808080", 0),
    }
    lines = ["<NotepadPlus>", '    <UserLang name="TARVEN Makro" ext="mak" udlVersion="2.1">', "        <Settings>"]
    lines.append('            <Global caseIgnored="yes" allowFoldOfComments="no" foldCompact="no" forcePureLC="1" decimalSeparator="0" />')
    lines.append('            <Prefix Keywords1="no" Keywords2="no" Keywords3="yes" Keywords4="no" />')
    lines += ["        </Settings>", "        <KeywordLists>"]
    lines += [f"            <Keywords name={quoteattr(name)}>{escape(text)}</Keywords>" for name, text in lists.items()]
    lines += ["        </KeywordLists>", "        <Styles>"]
    for name, (colour, style) in styles.items():
        lines.append(
            f'            <WordsStyle name="{name}" fgColor="{colour}" bgColor="FFFFFF" fontStyle="{style}" nesting="0" />'
        )
    lines += ["        </Styles>", "    </UserLang>", "</NotepadPlus>", ""]
    return "\n".join(lines)


def files(table):
    as_json = lambda value: json.dumps(value, indent=2, ensure_ascii=False) + "\n"
    return {
        EDITORS / "vscode" / "syntaxes" / "tarven-mak.tmLanguage.json": as_json(grammar(table)),
        EDITORS / "vscode" / "snippets" / "tarven-mak.json": as_json(snippets(table)),
        EDITORS / "notepad-plus-plus" / "tarven-mak.udl.xml": user_defined_language(table),
    }


def main():
    if len(sys.argv) not in (2, 3) or sys.argv[2:] not in ([], ["--check"]):
        sys.exit(__doc__)
    table = json.loads(subprocess.run([sys.argv[1], "--verbs", "--json"], check=True, capture_output=True).stdout)
    stale = []
    for path, text in files(table).items():
        if path.is_file() and path.read_text(encoding="utf-8") == text:
            continue
        stale.append(path)
        if sys.argv[2:] != ["--check"]:
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text, encoding="utf-8", newline="\n")
    for path in stale:
        print(path.relative_to(EDITORS))
    return 1 if stale and sys.argv[2:] == ["--check"] else 0


if __name__ == "__main__":
    sys.exit(main())
