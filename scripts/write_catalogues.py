#!/usr/bin/env python3
"""Writes the seven translation catalogues i18n/kelvane_<locale>.ts from the tables in scripts/catalogues.

Each table holds one line per message: context, source text and translation, separated by tabs, in the
order the catalogue lists them. The context AppController is not in the tables: the controller's texts
are kept exactly as they stand in each .ts file. Contexts follow in the order of their names.

Before anything is written every table is checked: all locales list the same messages in the same
order, no translation is blank, and each translation keeps the placeholders (%1, %2, ...) of its source.
The output depends only on the tables and the existing AppController blocks, so a second run changes
nothing.

Usage: python3 scripts/write_catalogues.py
"""

import collections
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
TABLES = ROOT / "scripts" / "catalogues"
CATALOGUES = ROOT / "i18n"
LOCALES = ("de", "es", "fr", "it", "pl", "pt_BR", "ru")
KEPT_CONTEXT = "AppController"
PLACEHOLDER = re.compile(r"%\d")
KEPT_BLOCK = re.compile(r"<context>\s*<name>" + KEPT_CONTEXT + r"</name>.*?</context>\n", re.S)
XML_ESCAPES = (("&", "&amp;"), ("<", "&lt;"), (">", "&gt;"), ('"', "&quot;"), ("'", "&apos;"))


def read_table(locale):
    rows = []
    path = TABLES / f"{locale}.tsv"
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), start=1):
        if line.startswith("#"):
            continue
        fields = line.split("\t")
        if len(fields) != 3:
            sys.exit(f"{path}:{number}: expected context, source and translation")
        rows.append(tuple(fields))
    return rows


def check_table(locale, rows, expected_keys):
    keys = [(context, source) for context, source, _ in rows]
    if keys != expected_keys:
        sys.exit(f"{locale}: the messages differ from those of {LOCALES[0]}")
    for context, source, translation in rows:
        if not translation.strip():
            sys.exit(f"{locale}: {context} '{source}' has no translation")
        if sorted(PLACEHOLDER.findall(translation)) != sorted(PLACEHOLDER.findall(source)):
            sys.exit(f"{locale}: {context} '{source}' changes its placeholders")


def escaped(text):
    for plain, entity in XML_ESCAPES:
        text = text.replace(plain, entity)
    return text


def context_block(context, messages):
    lines = ["<context>", f"    <name>{context}</name>"]
    for source, translation in messages:
        lines += [
            "    <message>",
            f"        <source>{escaped(source)}</source>",
            f"        <translation>{escaped(translation)}</translation>",
            "    </message>",
        ]
    lines.append("</context>")
    return "\n".join(lines) + "\n"


def kept_block(catalogue_text, path):
    match = KEPT_BLOCK.search(catalogue_text)
    if match is None:
        sys.exit(f"{path}: no {KEPT_CONTEXT} context to keep")
    return match.group(0)


def catalogue(locale, rows, old_text, path):
    contexts = collections.OrderedDict()
    for context, source, translation in rows:
        contexts.setdefault(context, []).append((source, translation))
    header = (
        '<?xml version="1.0" encoding="utf-8"?>\n<!DOCTYPE TS>\n'
        f'<TS version="2.1" language="{locale}" sourcelanguage="en">\n'
    )
    blocks = {name: context_block(name, messages) for name, messages in contexts.items()}
    blocks[KEPT_CONTEXT] = kept_block(old_text, path)
    return header + "".join(blocks[name] for name in sorted(blocks)) + "</TS>\n"


def main():
    tables = {locale: read_table(locale) for locale in LOCALES}
    expected_keys = [(context, source) for context, source, _ in tables[LOCALES[0]]]
    for locale, rows in tables.items():
        check_table(locale, rows, expected_keys)
    for locale, rows in tables.items():
        path = CATALOGUES / f"kelvane_{locale}.ts"
        text = catalogue(locale, rows, path.read_text(encoding="utf-8"), path)
        path.write_text(text, encoding="utf-8")
        same = sum(1 for _, source, translation in rows if source == translation)
        print(f"{path.relative_to(ROOT)}: {len(rows)} messages, {same} equal to their source")


if __name__ == "__main__":
    main()
