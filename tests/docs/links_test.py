#!/usr/bin/python3
"""Follows every link: of the tree's Markdown to files and headings, of the built HTML to files and anchors.

links_test.py HTML-FOLDER
"""
import html.parser
import pathlib
import re
import sys
import urllib.parse

ROOT = pathlib.Path(__file__).resolve().parents[2]
PAGES = ["*.md", "bench/*.md", "bindings/**/*.md", "docs/*.md", "examples/*.md", "packaging/*.md"]


def without_code(text):
    return re.sub(r"`[^`\n]*`", "", re.sub(r"^\s*```.*?^\s*```$", "", text, flags=re.M | re.S))


def slug(heading):
    """The anchor that GitHub gives a heading."""
    heading = re.sub(r"\[([^\]]*)\]\([^)]*\)", r"\1", heading).replace("`", "").strip().lower()
    return re.sub(r"[^\w\- ]", "", heading).replace(" ", "-")


def markdown_anchors(path):
    text = re.sub(r"^\s*```.*?^\s*```$", "", path.read_text(), flags=re.M | re.S)
    return {slug(heading) for heading in re.findall(r"^#+ (.*)$", text, flags=re.M)}


def is_elsewhere(target):
    return urllib.parse.urlsplit(target).scheme != ""


def markdown_links():
    for path in sorted(path for pattern in PAGES for path in ROOT.glob(pattern)):
        if "node_modules" in path.parts or "build" in path.relative_to(ROOT).parts:
            continue
        for target in re.findall(r"\]\(<?([^)\s>]+)>?\)", without_code(path.read_text())):
            yield path, target


# What only the HTML has; its own links are followed below.
MADE = ("api/", "playground/index.html")


def check_markdown(complain):
    count = 0
    for path, target in markdown_links():
        if is_elsewhere(target) or (path.parent.name == "docs" and target.startswith(MADE)):
            continue
        count += 1
        name, _, anchor = target.partition("#")
        base = ROOT if path.parent.name == "packaging" else path.parent  # that one is read in the package
        file = (base / name).resolve() if name else path
        if not file.exists():
            complain(f"{path.relative_to(ROOT)}: there is no {target}")
        elif anchor and file.suffix == ".md" and anchor not in markdown_anchors(file):
            complain(f"{path.relative_to(ROOT)}: {target}: no such heading")
    return count


class Page(html.parser.HTMLParser):
    def __init__(self, text):
        super().__init__()
        self.links, self.anchors = [], set()
        self.feed(text)

    def handle_starttag(self, tag, attributes):
        for name, value in attributes:
            if name == "id" or (name == "name" and tag == "a"):
                self.anchors.add(value)
            elif name in ("href", "src") and value:
                self.links.append(value)


def check_html(folder, complain):
    pages = {path.resolve(): Page(path.read_text()) for path in folder.rglob("*.html") if path.name != "404.html"}
    count = 0
    for path, page in pages.items():
        for link in page.links:
            if is_elsewhere(link):
                continue
            count += 1
            name, _, anchor = urllib.parse.unquote(link).partition("#")
            file = (path.parent / name.partition("?")[0]).resolve() if name else path
            if file.is_dir():
                file = file / "index.html"
            if not file.exists():
                complain(f"{path.relative_to(folder)}: there is no {link}")
            elif anchor and file in pages and anchor not in pages[file].anchors:
                complain(f"{path.relative_to(folder)}: {link}: no such anchor")
    return count


def main(folder):
    complaints = []
    markdown = check_markdown(complaints.append)
    built = check_html(pathlib.Path(folder).resolve(), complaints.append)
    print("\n".join(complaints + [f"links: {markdown} of Markdown and {built} of HTML followed, {len(complaints)} lead nowhere"]))
    sys.exit(1 if complaints or not markdown or not built else 0)


if __name__ == "__main__":
    main(*sys.argv[1:])
