"""The pages' Mermaid drawings as pictures of the HTML, so that they are seen without scripts.

Knows what the pages use: sequence diagrams of participants, calls, answers and notes, and graphs, which Graphviz lays out.
"""
import html
import re
import subprocess

LETTER, ROW, TOP, MARGIN = 6.6, 34, 44, 14  # pixels; letters by their usual width


def parse_sequence(text):
    names, rows = {}, []
    for line in text.splitlines()[1:]:
        line = line.strip()
        if match := re.match(r"participant (\w+)(?: as (.*))?$", line):
            names[match[1]] = match[2] or match[1]
        elif match := re.match(r"(\w+)(--?)>>(\w+): (.*)$", line):
            rows.append((match[1], match[3], match[4], match[2] == "--"))
        elif match := re.match(r"Note over (\w+): (.*)$", line):
            rows.append((match[1], match[1], match[2], False))
        elif line:
            raise ValueError(f"a line of a sequence diagram that is not understood: {line}")
    return names, rows


def columns(names, rows):
    """Where each life line stands, so that every text has room."""
    keys = list(names)
    gaps = [(len(names[a]) + len(names[b])) / 2 * LETTER + 30 for a, b in zip(keys, keys[1:])]
    for source, target, text, _ in rows:
        first, last = sorted((keys.index(source), keys.index(target)))
        if first != last:
            missing = len(text) * LETTER + 24 - sum(gaps[first:last])
            for i in range(first, last):
                gaps[i] += max(missing, 0) / (last - first)
    notes = [text for source, target, text, _ in rows if source == target == keys[0]]
    places = [MARGIN + max(map(len, [names[keys[0]], *notes])) * LETTER / 2 + 10]
    for gap in gaps:
        places.append(places[-1] + gap)
    return dict(zip(keys, places))


def sequence(text):
    names, rows = parse_sequence(text)
    places = columns(names, rows)
    last = list(names)[-1]
    width = places[last] + len(names[last]) * LETTER / 2 + 10 + MARGIN
    height = TOP + ROW * len(rows) + 16
    parts = []
    for key, x in places.items():
        half = len(names[key]) * LETTER / 2 + 10
        parts.append(f'<path d="M{x:.0f} 34V{height - 8}" stroke="#9aa1ab" stroke-dasharray="3 3"/>'
                     f'<rect x="{x - half:.0f}" y="8" width="{2 * half:.0f}" height="26" rx="4" fill="#e8eef6" stroke="#1d5fae"/>'
                     f'<text x="{x:.0f}" y="26" text-anchor="middle">{html.escape(names[key])}</text>')
    for i, (source, target, label, dashed) in enumerate(rows):
        y, a, b = TOP + ROW * i + 24, places[source], places[target]
        if source == target:
            half = len(label) * LETTER / 2 + 8
            parts.append(f'<rect x="{a - half:.0f}" y="{y - 19}" width="{2 * half:.0f}" height="24" fill="#fff7d6" stroke="#c9b458"/>')
        else:
            tip = b - 8 if b > a else b + 8
            dashes = ' stroke-dasharray="5 4"' if dashed else ""
            parts.append(f'<path d="M{a:.0f} {y}H{b:.0f}M{tip:.0f} {y - 4}L{b:.0f} {y}L{tip:.0f} {y + 4}" '
                         f'stroke="#22262c" fill="none"{dashes}/>')
        parts.append(f'<text x="{(a + b) / 2:.0f}" y="{y - 4}" text-anchor="middle">{html.escape(label)}</text>')
    return (f'<svg class="drawing" xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {width:.0f} {height}" width="{width:.0f}" '
            f'height="{height}" font-family="sans-serif" font-size="12" fill="#22262c">{"".join(parts)}</svg>')


def graph(text):
    lines = ['digraph { rankdir=TB; bgcolor="transparent"; node [shape=box, style=rounded, fontname="sans-serif", fontsize=11];',
             'edge [fontname="sans-serif", fontsize=10];']
    for line in text.splitlines()[1:]:
        match = re.match(r"\s*(\w+)(?:\[(.*?)\])? (-->|-\.->|-\. .* \.->) (\w+)(?:\[(.*)\])?$", line)
        if not match:
            raise ValueError(f"a line of a graph that is not understood: {line}")
        for name, label in ((match[1], match[2]), (match[4], match[5])):
            if label:
                lines.append(f'{name} [label="{label}"];')
        label = match[3][3:-4].strip() if match[3].startswith("-. ") else ""
        lines.append(f'{match[1]} -> {match[4]} [style={"solid" if match[3] == "-->" else "dashed"}, label="{label}"];')
    drawn = subprocess.run(["dot", "-Tsvg"], input="\n".join(lines + ["}"]), stdout=subprocess.PIPE, text=True, check=True).stdout
    return drawn[drawn.index("<svg"):].replace("<svg", '<svg class="drawing"', 1)


def on_page_markdown(markdown, **_):
    def drawing(match):
        drawn = graph(match[1]) if match[1].startswith("graph") else sequence(match[1])
        return re.sub(r"<!--.*?-->|\n", "", drawn, flags=re.S)
    return re.sub(r"^```mermaid\n(.*?)^```$", drawing, markdown, flags=re.M | re.S)
