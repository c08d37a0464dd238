"""The include check must fail on trees that break its rules, and only on those."""

import sys
import tempfile
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tools"))
import check_includes  # noqa: E402


def breaches(files):
    with tempfile.TemporaryDirectory() as folder:
        root = Path(folder)
        for name, content in files.items():
            (root / name).parent.mkdir(parents=True, exist_ok=True)
            (root / name).write_text(content, encoding="utf-8")
        return list(check_includes.breaches(root))


class CheckIncludes(unittest.TestCase):
    def test_lets_arrows_point_down(self):
        self.assertEqual([], breaches({
            "text/a.h": "#include <string>\n",
            "core/b.h": '#include "text/a.h"\n',
            "core/b.cpp": '#include "core/b.h"\n#include "core/c.h"\n',
            "core/c.h": "",
            "ui/qt/d.cpp": '#include <QWidget>\n#include "text/a.h"\n',
            "ui/qt/e.h": "",
            "app/main.cpp": '#include "ui/qt/e.h"\n#include "core/b.h"\n',
            "tests/core/b_test.cpp": '#include "app/f.h"\n',
            "app/f.h": "",
        }))

    def assert_breach(self, expected, files):
        found = breaches(files)
        self.assertEqual(1, len(found), found)
        self.assertTrue(found[0].startswith(expected), found)

    def test_refuses_arrows_up_and_sideways(self):
        self.assert_breach("text/a.h:2: text/", {"text/a.h": '\n#include "core/b.h"\n', "core/b.h": ""})
        self.assert_breach("saves/a.h:1:", {"saves/a.h": '#include "interactions/b.h"\n', "interactions/b.h": ""})
        self.assert_breach("interactions/b.h:1:", {"interactions/b.h": '#include "saves/a.h"\n', "saves/a.h": ""})
        self.assert_breach("ui/a.h:1:", {"ui/a.h": '#include "ui/qt/b.h"\n', "ui/qt/b.h": ""})
        self.assert_breach("core/a.cpp:1:", {"core/a.cpp": '#include "tests/play.h"\n', "tests/play.h": ""})

    def test_keeps_qt_in_its_folder(self):
        self.assert_breach("app/main.cpp:1: only ui/qt", {"app/main.cpp": "#include <QApplication>\n"})
        self.assert_breach("core/a.h:1: only ui/qt", {"core/a.h": "#include <QtCore/qglobal.h>\n"})

    def test_wants_whole_names_in_quotes(self):
        self.assert_breach("core/a.cpp:1: no such file", {"core/a.cpp": '#include "b.h"\n', "core/b.h": ""})
        self.assert_breach("core/a.cpp:1: our own", {"core/a.cpp": "#include <core/b.h>\n", "core/b.h": ""})

    def test_finds_circles_through_the_cpp_of_a_header(self):
        self.assert_breach("core/b.cpp:1: the files include each other in a circle: core/a -> core/b -> core/a", {
            "core/a.h": '#include "core/b.h"\n',
            "core/b.h": "",
            "core/b.cpp": '#include "core/a.h"\n',
        })


if __name__ == "__main__":
    unittest.main()
