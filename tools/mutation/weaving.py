"""Weaves mutants into the text of a file, each behind its switch."""

import re

SWITCH = b'#include "mutant_switch.h"\n#line 1\n'


class _Node:
    def __init__(self, begin, end):
        self.begin, self.end = begin, end
        self.templates = []  # (level, number, template)
        self.children = []


def _tree(size, numbered):
    """Ranges nested in each other; a mutant whose range lies across another's is left out and answered."""
    root, refused = _Node(0, size), []
    for number, mutant in sorted(numbered.items(), key=lambda e: (e[1].begin - e[1].end, e[1].begin)):
        node = root
        while True:
            inner = next((c for c in node.children if c.begin <= mutant.begin and mutant.end <= c.end), None)
            if inner is None:
                break
            node = inner
        if (node.begin, node.end) == (mutant.begin, mutant.end) and node is not root:
            node.templates.append((mutant.level, number, mutant.template))
        elif any(c.begin < mutant.end and mutant.begin < c.end for c in node.children):
            refused.append(number)
        else:
            child = _Node(mutant.begin, mutant.end)
            child.templates.append((mutant.level, number, mutant.template))
            node.children.append(child)
    return root, refused


def weave(data, numbered, weakenings):
    """The text with the mutants in it, each between marks, and the numbers that could not be placed."""
    root, refused = _tree(len(data), numbered)
    replaced = {(w.begin, w.end): w.replacement.encode() for w in weakenings}

    def plain(begin, end):
        text, at = b"", begin
        for (b, e), replacement in sorted(replaced.items()):
            if begin <= b and e <= end:
                text += data[at:b] + replacement
                at = e
        return text + data[at:end]

    def render(node):
        text, at = b"", node.begin
        for child in sorted(node.children, key=lambda c: c.begin):
            text += plain(at, child.begin) + render(child)
            at = child.end
        text += plain(at, node.end)
        for _, number, template in sorted(node.templates):
            head, tail = template.replace("@ID@", str(number)).encode().split(b"@WAS@")
            text = b"/*<%d*/" % number + head + text + tail + b"/*%d>*/" % number
        return text

    return SWITCH + render(root), refused


def mutants_at(woven, line, column):
    """The numbers of the innermost mutant that stands at a place which a compiler named; several where they share a
    range. Lines and columns count from 1, behind the switch."""
    text = woven[len(SWITCH) :]
    lines = text.split(b"\n")
    if not 1 <= line <= len(lines):
        return []
    offset = sum(len(part) + 1 for part in lines[: line - 1]) + column - 1
    for begin, end in ((offset, offset), (offset - column + 1, offset - column + 1 + len(lines[line - 1]))):
        best = _enclosing(text, begin, end)
        if best:
            return best
    return [int(n) for n in re.findall(rb"/\*<(\d+)\*/", lines[line - 1])]


def _enclosing(text, begin, end):
    spans = []
    for mark in re.finditer(rb"/\*<(\d+)\*/", text):
        number = int(mark.group(1))
        close = text.find(b"/*%d>*/" % number, mark.end())
        if mark.start() <= begin and end <= close + 8 + len(mark.group(1)):
            spans.append((close - mark.start(), number))
    return [min(spans)[1]] if spans else []
