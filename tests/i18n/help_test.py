#!/usr/bin/env python3
"""The help has the same pages in every language, without dead links, and names buttons, options and
headings as the forms show them."""
import pathlib
import re
import sys
import unittest
import xml.etree.ElementTree as ElementTree

ROOT = pathlib.Path(__file__).resolve().parents[2]
HELP = ROOT / "help"
sys.dont_write_bytecode = True
sys.path.insert(0, str(ROOT / "tools"))
import check_words  # noqa: E402

LANGUAGES = [path.name.split(".")[1] for path in sorted((ROOT / "i18n").glob("melvoralang.*.ts"))]


def shown(text):
    """A label as it stands in running text: no mnemonic, no final colon, dots or blanks."""
    return re.sub(r"[\s.…:]*$", "", text.replace("&", ""))


def pages(suffix):
    return {path.name: ElementTree.parse(path).getroot() for path in (HELP / suffix).glob("*.html")}


class Help(unittest.TestCase):
    def test_every_language_has_every_page(self):
        for suffix in LANGUAGES:
            with self.subTest(suffix):
                self.assertEqual(sorted(pages(suffix)), sorted(pages(LANGUAGES[0])))
                self.assertIn("index.html", pages(suffix))

    def test_pages_of_one_form_have_the_same_parts(self):
        def outline(page):
            return [node.tag for node in page.iter() if node.tag in ("h1", "h2", "table", "tr", "li")]

        first = pages(LANGUAGES[0])
        for suffix in LANGUAGES[1:]:
            for name, page in pages(suffix).items():
                with self.subTest(f"{suffix}/{name}"):
                    self.assertEqual(outline(page), outline(first[name]))

    def test_every_page_can_be_reached_and_no_link_is_dead(self):
        for suffix in LANGUAGES:
            found = pages(suffix)
            linked = {"index.html"}
            for name, page in found.items():
                for node in page.iter():
                    if "href" in node.attrib:
                        with self.subTest(f"{suffix}/{name}", href=node.get("href")):
                            self.assertTrue((HELP / suffix / node.get("href")).exists())
                        linked.add(node.get("href"))
            with self.subTest(suffix):
                self.assertEqual(set(found) - linked, set())

    def test_bold_text_is_a_label_of_the_program(self):
        for suffix in LANGUAGES:
            texts = check_words.Language(ROOT / f"i18n/melvoralang.{suffix}.ts").texts
            labels = {shown(text) for text in texts.values()}
            for name, page in pages(suffix).items():
                for node in page.iter("b"):
                    with self.subTest(f"{suffix}/{name}"):
                        self.assertIn(node.text, labels)

    def test_the_resource_file_lists_what_is_there(self):
        listed = {node.text for node in ElementTree.parse(HELP / "help.qrc").getroot().iter("file")}
        there = {str(p.relative_to(HELP)) for p in HELP.rglob("*") if p.suffix in (".html", ".css")}
        self.assertEqual(listed, there)


if __name__ == "__main__":
    unittest.main()
