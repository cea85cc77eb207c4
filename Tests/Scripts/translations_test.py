#!/usr/bin/python3
"""Tests that the table of each language has every text of the sources, and that keys and comments agree between tables.

translations_test.py ROOT
"""

import re
import sys
import unittest
import xml.etree.ElementTree as XML
from pathlib import Path

ROOT = Path(sys.argv.pop())
FOLDER = ROOT / "Resources" / "Localizations"
USE = re.compile(r'//% "(?P<text>[^"]*)"[^"]*qtTrId\("(?P<key>[^"]*)"\)')


def table(path):
    return {message.get("id"): {child.tag: child.text or "" for child in message}
            for message in XML.parse(path).getroot().iter("message")}


class Translations(unittest.TestCase):
    tables = {path.stem.removeprefix("velmar_"): table(path) for path in sorted(FOLDER.glob("*.ts"))}

    def test_there_are_ten_languages_of_the_same_keys_and_comments(self):
        self.assertEqual(10, len(self.tables))
        english = self.tables["en"]
        for language, messages in self.tables.items():
            with self.subTest(language=language):
                self.assertEqual(language, XML.parse(FOLDER / f"velmar_{language}.ts").getroot().get("language"))
                self.assertEqual(list(english), list(messages))
                for key, message in messages.items():
                    self.assertEqual({**english[key], "translation": None}, {**message, "translation": None}, key)
                    self.assertTrue(message["translation"].strip(), key)
                    # A text ends with a full stop in all languages or in none.
                    self.assertEqual(english[key]["source"].endswith("."), message["translation"][-1] in ".。", key)

    def test_the_sources_ask_for_the_texts_of_the_tables(self):
        english = self.tables["en"]
        sources = [path.read_text(encoding="utf-8") for path in (ROOT / "Sources").rglob("*.cpp")
                   if path.parent.name != "Tests"]
        asked = [(use["key"], use["text"]) for source in sources for use in USE.finditer(source)]
        self.assertEqual(sum(source.count("qtTrId(") for source in sources), len(asked))
        self.assertTrue(asked)
        for key, text in asked:
            with self.subTest(key=key):
                self.assertEqual(text, english[key]["source"])
                self.assertEqual(text, english[key]["translation"])


if __name__ == "__main__":
    unittest.main()
