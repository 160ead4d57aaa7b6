#!/usr/bin/env python3
"""Makes the pages of the drafter's help, docs/help/LANGUAGE/TOPIC.html, from docs/help/texts/LANGUAGE/TOPIC.md.

The texts use headings, paragraphs, lists with "-", **bold**, `code` and [links](Topic.html). With --check nothing is
written: it fails when a page is not what its text gives, when a page has no text, when a topic has no translation, or when a
link leads to no topic.
"""
import html
import pathlib
import re
import sys

HELP = pathlib.Path(__file__).resolve().parents[1] / "docs" / "help"
LANGUAGES = ("en", "zh")
PAGE = """<!DOCTYPE html>
<html lang="{language}">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width">
<title>{title}</title>
<link rel="stylesheet" href="../help.css">
</head>
<body>
{body}
{home}</body>
</html>
"""
HOME = {"en": '<p><a href="index.html">Drafter help</a></p>\n', "zh": '<p><a href="index.html">Drafter 帮助</a></p>\n'}


def inline(text):
    """A line's marks as HTML; what stands in backquotes stays as it is."""
    pieces = re.split(r"`([^`]*)`", text)
    for index, piece in enumerate(pieces):
        piece = html.escape(piece, quote=False)
        if index % 2:
            pieces[index] = f"<code>{piece}</code>"
            continue
        piece = re.sub(r"\*\*(.+?)\*\*", r"<strong>\1</strong>", piece)
        pieces[index] = re.sub(r"\[(.+?)\]\((.+?)\)", r'<a href="\2">\1</a>', piece)
    return "".join(pieces)


def block(lines):
    """A paragraph, heading or list as HTML."""
    heading = re.match(r"(#+) (.*)", lines[0])
    if heading:
        level = len(heading.group(1))
        return f"<h{level}>{inline(heading.group(2))}</h{level}>"
    if lines[0].startswith("- "):
        items = "\n".join(f"<li>{inline(line[2:])}</li>" for line in lines)
        return f"<ul>\n{items}\n</ul>"
    return f"<p>{inline(' '.join(lines))}</p>"


def page(language, topic, text):
    blocks = [part.split("\n") for part in text.strip().split("\n\n")]
    title = re.sub(r"^#+ ", "", blocks[0][0])
    body = "\n".join(block(lines) for lines in blocks)
    return PAGE.format(language="zh-CN" if language == "zh" else language, title=html.escape(title), body=body,
                       home="" if topic == "index" else HOME[language])


def pages():
    """Every page by its path, and what is wrong with the texts."""
    made, problems = {}, []
    topics = {language: {p.stem for p in (HELP / "texts" / language).glob("*.md")} for language in LANGUAGES}
    for topic in sorted(set.union(*topics.values())):
        for language in LANGUAGES:
            if topic not in topics[language]:
                problems.append(f"{topic} has no text in {language}")
                continue
            text = (HELP / "texts" / language / f"{topic}.md").read_text(encoding="utf-8")
            for link in re.findall(r"\]\((.+?)\)", text):
                if link.removesuffix(".html") not in topics[language] or not link.endswith(".html"):
                    problems.append(f"{language}/{topic}: {link} is no topic")
            made[HELP / language / f"{topic}.html"] = page(language, topic, text)
    return made, problems


def main():
    made, problems = pages()
    present = {path for language in LANGUAGES for path in (HELP / language).glob("*.html")}
    if "--check" in sys.argv[1:]:
        problems += [f"{path.relative_to(HELP)} is not what its text gives; run tools/make_help.py"
                     for path, text in made.items() if path not in present or path.read_text(encoding="utf-8") != text]
        problems += [f"{path.relative_to(HELP)} has no text" for path in present - made.keys()]
    elif not problems:
        for path in present - made.keys():
            path.unlink()
        for path, text in made.items():
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text, encoding="utf-8")
    if problems:
        print("\n".join(problems))
    return 1 if problems else 0


sys.exit(main())
