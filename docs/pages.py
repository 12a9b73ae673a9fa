"""What MkDocs does with the manual's pages beyond its own: which files belong to it, and links out of it."""
import posixpath
import re

from mkdocs.structure.files import Files


def on_files(files, config):
    """The playground and the manual's own tools lie in the same folder."""
    return Files([file for file in files if file.src_path.endswith((".md", ".png", ".svg", ".css")) and
                  not file.src_path.startswith(("playground/", "theme/"))] +
                 [file for file in files if file.src_path.startswith(("js/", "css/", "fonts/", "search/", "img/"))])


def on_page_markdown(markdown, page, **_):
    """A file of the tree that is no page becomes its name: the HTML lies where no tree is."""
    def name(match):
        target = match.group(2)
        if not target.startswith("../"):
            return match.group(0)
        path = posixpath.normpath(posixpath.join("docs", posixpath.dirname(page.file.src_path), target.split("#")[0]))
        return match.group(1) if match.group(1) == f"`{path}`" else f"{match.group(1)} (`{path}` in the tree)"
    return re.sub(r"(?<!!)\[([^\]]*)\]\(([^)\s]+)\)", name, markdown)
