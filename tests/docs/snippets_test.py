#!/usr/bin/python3
"""Compiles or parses every block of code in README and manual: snippets_test.py FOLDER

A block is a whole file, unless the line above it says <!-- snippet: statements -->: then it stands in a function that has
what PRELUDES declare.
"""
import ast
import json
import pathlib
import re
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parents[2]
PAGES = ["README.md", "packaging/README.md", "examples/README.md", "bindings/*/README.md", "docs/*.md"]
WINDOWS = ["-I", f"{ROOT}/include", "-Wall", "-Wextra", "-Werror", "-Wno-unused-function", "-fsyntax-only"]
PRELUDES = {
    "c": ("#include <lumora/lumora.h>\n#include <windows.h>\nvoid Host(HWND overlay, MSG message, LM_PenData sample);\n"
          "void Host(HWND overlay, MSG message, LM_PenData sample)\n{{\n(void)overlay, (void)message, (void)sample;\n{}\n}}\n"),
    "csharp": "{using}internal static class Host {{ private static void Main() {{\n{}\n}} }}\n",
}


class Snippet:
    def __init__(self, page, line, language, form, text):
        self.place = f"{page}:{line}"
        self.language, self.form, self.text = language, form, text


def snippets_of(path):
    form = language = None
    text, begin = [], 0
    for number, line in enumerate(path.read_text().splitlines(), 1):
        fence = re.match(r"^\s*```(\S*)$", line)
        if fence and language is None:
            language, text, begin = fence[1], [], number
        elif fence:
            yield Snippet(path.relative_to(ROOT), begin, language, form, "\n".join(text) + "\n")
            language = form = None
        elif language is not None:
            text.append(line)
        elif line.strip():
            marker = re.match(r"^<!-- snippet: (\w+) -->$", line)
            form = marker[1] if marker else None


def run(command, folder):
    result = subprocess.run(command, cwd=folder, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False)
    return result.stdout if result.returncode != 0 else ""


def write(folder, name, text):
    path = pathlib.Path(folder) / name
    path.write_text(text)
    return str(path)


def whole(snippet):
    if snippet.form is None:
        return snippet.text
    if snippet.language == "csharp":
        lines = snippet.text.splitlines(True)
        usings = [line for line in lines if line.startswith("using ") and line.rstrip().endswith(";")]
        body = "".join(line for line in lines if line not in usings)
        return PRELUDES["csharp"].format(body, using="".join(usings))
    return PRELUDES[snippet.language].format(snippet.text)


def check_c(snippet, folder):
    return run(["x86_64-w64-mingw32-gcc", "-std=c99", *WINDOWS, write(folder, "snippet.c", whole(snippet))], folder)


def check_cpp(snippet, folder):
    return run(["x86_64-w64-mingw32-g++", "-std=c++17", *WINDOWS, write(folder, "snippet.cpp", whole(snippet))], folder)


def check_csharp(snippet, folder):
    sources = [str(path) for path in ROOT.glob("bindings/csharp/Lumora/*.cs")]
    source = write(folder, "snippet.cs", whole(snippet))
    return run(["mcs", "-nologo", "-langversion:7", "-out:snippet.exe", *sources, source], folder)


def check_python(snippet, folder):
    """Parsed whole; what it imports is imported, so a name that is not there is found."""
    tree = ast.parse(snippet.text)
    imports = "\n".join(ast.unparse(node) for node in tree.body if isinstance(node, (ast.Import, ast.ImportFrom)))
    return run(["python3", "-B", "-c", f"import sys; sys.path.insert(0, '{ROOT}/bindings/python')\n{imports}"], folder)


def check_js(snippet, folder):
    return run(["node", "--check", write(folder, "snippet.js", snippet.text)], folder)


def check_sh(snippet, folder):
    """Parsed, and each script of the tree that it calls is there."""
    for script in re.findall(r"(?:^|\s)(scripts/[\w-]+)", snippet.text):
        if not (ROOT / script).is_file():
            return f"there is no {script}"
    return run(["bash", "-n", write(folder, "snippet.sh", snippet.text)], folder)


def check_cmake(snippet, folder):
    return run(["cmake", "-P", write(folder, "snippet.cmake", f"if(FALSE)\n{snippet.text}endif()\n")], folder)


def check_json(snippet, _):
    json.loads(snippet.text)
    return ""


CHECKS = {"c": check_c, "cpp": check_cpp, "csharp": check_csharp, "python": check_python, "js": check_js, "sh": check_sh,
          "cmake": check_cmake, "json": check_json}
NOT_CHECKED = {"text", "mermaid", "bat"}  # no code, drawings, and Windows' own shell


def main():
    failures = 0
    counts = {}
    for path in sorted(path for pattern in PAGES for path in ROOT.glob(pattern)):
        for snippet in snippets_of(path):
            counts[snippet.language] = counts.get(snippet.language, 0) + 1
            if snippet.language in NOT_CHECKED:
                continue
            if snippet.language not in CHECKS:
                complaint = f"a block of a language that nobody checks: \"{snippet.language}\""
            else:
                with tempfile.TemporaryDirectory() as folder:
                    try:
                        complaint = CHECKS[snippet.language](snippet, folder)
                    except (SyntaxError, ValueError) as error:
                        complaint = str(error)
            if complaint:
                failures += 1
                print(f"{snippet.place}: {complaint}")
    print("snippets:", ", ".join(f"{count} {language}" for language, count in sorted(counts.items())))
    sys.exit(1 if failures else 0)


if __name__ == "__main__":
    main()
