#!/usr/bin/python3
"""The built manual in headless Chromium, from a web server of its own: manual_test.py HTML-FOLDER [unittest's arguments]"""
import functools
import http.server
import pathlib
import re
import sys
import threading
import unittest

from browser import Browser

FOLDER = pathlib.Path()


class Quiet(http.server.SimpleHTTPRequestHandler):
    def log_message(self, *_):
        pass


class Manual(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        handler = functools.partial(Quiet, directory=str(FOLDER))
        cls.server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), handler)
        threading.Thread(target=cls.server.serve_forever, daemon=True).start()
        cls.address = f"http://127.0.0.1:{cls.server.server_port}"
        cls.browser = Browser(f"{cls.address}/playground/index.html")

    @classmethod
    def tearDownClass(cls):
        cls.browser.close()
        cls.server.shutdown()
        cls.server.server_close()

    def tearDown(self):
        self.assertEqual(self.browser.faults(), [])

    def open(self, page):
        self.browser.driver.get(f"{self.address}/{page}")

    def test_the_first_page_has_the_playground_and_the_version(self):
        self.open("index.html")
        self.browser.wait(
            "return document.querySelector('iframe').contentDocument.documentElement.dataset.ready === 'true'")
        header = (FOLDER.parents[2] / "include/lumora/version.h").read_text()
        version = ".".join(re.findall(r"^#define LUMORA_VERSION_(?:MAJOR|MINOR|BUILD|REVISION) (\d+)$", header, re.M))
        self.assertIn(version, self.browser.text("body"))

    def test_the_search_finds(self):
        self.open("search.html?q=zebraMode")
        self.browser.wait("return document.querySelector('#mkdocs-search-results a[href*=\"options.html\"]') !== null")

    def test_nothing_comes_from_outside(self):
        for page in ("index.html", "options.html", "api/lumora_8h.html"):
            self.open(page)
            names = self.browser.run("return performance.getEntriesByType('resource').map((entry) => entry.name)")
            self.assertNotEqual(names, [])
            self.assertEqual([name for name in names if not name.startswith(self.address)], [], page)

    def test_every_page_is_readable_without_scripts(self):
        self.browser.send("Emulation.setScriptExecutionDisabled", {"value": True})
        self.addCleanup(self.browser.send, "Emulation.setScriptExecutionDisabled", {"value": False})
        pages = sorted(path.name for path in FOLDER.glob("*.html") if path.stem not in ("404", "search"))
        self.assertGreater(len(pages), 15)
        for page in pages:
            self.open(page)
            document = self.browser.send("DOM.getDocument", {})["root"]["nodeId"]
            for selector, least in (('[role="main"]', 100), ("nav", 500)):
                node = self.browser.send("DOM.querySelector", {"nodeId": document, "selector": selector})["nodeId"]
                box = self.browser.send("DOM.getBoxModel", {"nodeId": node})["model"]
                self.assertGreater(box["height"], least, (page, selector))


if __name__ == "__main__":
    FOLDER = pathlib.Path(sys.argv.pop(1)).resolve()
    unittest.main()
