"""The spelling check must find a slip wherever a player would, and keep the word list short."""

import sys
import tempfile
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools"))
import check_spelling  # noqa: E402


def faults(files, words=""):
    with tempfile.TemporaryDirectory() as folder:
        root = Path(folder)
        for name, content in {"story/words.txt": words, **files}.items():
            (root / name).parent.mkdir(parents=True, exist_ok=True)
            (root / name).write_text(content, encoding="utf-8")
        return list(check_spelling.faults(root))


class CheckSpelling(unittest.TestCase):
    def test_finds_slips_in_story_sources_and_documents(self):
        self.assertCountEqual(["core/a.cpp:4: dvéra", "core/items.cpp:1: lanpa", "story/texts.txt:2: dvěře", "docs/a.md:1: zaměk"], faults({
            "story/texts.txt": "1: Dveře.\n2: Zavřené dvěře.\n",
            "core/a.cpp": '#include "core/b.h"\n// kommentář\nauto a = "English wurds";\nauto b = "Příliš dvéra "\n    "a dveře";\n',
            "core/items.cpp": 'auto c = "lanpa";\n',
            "docs/a.md": "Dveře, zaměk a [odkaz](neznamy.md), `prykaz`.\n",
        }))

    def test_knows_the_games_own_words(self):
        self.assertEqual([], faults({"story/texts.txt": "1: Tavoren s Tavorenem u Iškary.\n"}, "Iškary\nTavoren/hrad\n"))

    def test_keeps_the_word_list_sorted_and_needed(self):
        texts = {"story/texts.txt": "1: Selag a Tavoren.\n"}
        self.assertEqual(["story/words.txt:2: not in order, or there twice: Selag"], faults(texts, "Tavoren\nSelag\n"))
        self.assertEqual(["story/words.txt:1: needless: Alcaster"], faults(texts, "Alcaster\nSelag\nTavoren\n"))
        self.assertEqual(["story/words.txt:1: needless: Hrad"], faults(texts, "Hrad\nSelag\nTavoren\n"))


if __name__ == "__main__":
    unittest.main()
