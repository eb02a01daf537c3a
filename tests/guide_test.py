#!/usr/bin/python3
"""Whether the user's guide is whole: its index of messages has every form's title and every text that the product
shows in a box or tells of itself, and every link and picture of its pages leads somewhere.

    guide_test.py <the project>
"""
import html
import pathlib
import re
import sys

ROOMS = "app send addressbook handover saved_texts update drafts compose gateway service core platform machine".split()
# Not shown: what the download says of itself is heard by nobody.
UNSEEN = {"update/download.cpp"}

LITERALS = r'(?:u?"(?:[^"\\\n]|\\.)*"\s*)+'
# Words that only a sentence of the product has; what lacks them is a caption, a column or a unit.
SENTENCE = re.compile(r"니다|시오|세요|까\?|[!?]$")
# What opens a box, and what makes the description that one shows. Behind it stands the bracket of the call.
CALL = re.compile(r"(?:\bcore::(?:warn|ask|show_error)|\.(?:message_box|input_box)|\b(?:throw|return) (?:platform::)?RuntimeError)"
                  r"(?=\()")
# In a call without a literal: the text was written where these come from, and is found there as a sentence.
BROUGHT = re.compile(r"(?<!\.)\b(ErrorNumber|number_of|error|failure_?|fault|result|text|question|[A-Z]+_[A-Z]+)\b")
# All Korean of these files is titles of the form, whose own files have none.
TITLES = {"frmWeb": "service/service_pages.cpp", "frmZent": "core/app_state.h"}


def source(path):
    """The file without comments, and without the tips and captions of its controls."""
    text = re.sub(r'("(?:[^"\\\n]|\\.)*")|//[^\n]*', lambda found: found[1] or "", path.read_text())
    text = re.sub(r"set_?[tT]ool_?[tT]ip\((?:QStringLiteral\()?\s*" + LITERALS, "(", text)
    return re.sub(r'(u"[A-Za-z]\w*",\s*)' + LITERALS, r"\1", text)


def plain(text):
    """The letters alone: blanks, line ends and the marks of Markdown differ between a literal and a page."""
    return re.sub(r"[\s\\*]|</?[bp]r?>", "", text)


def parts_of(literals):
    """The texts between what a literal leaves open."""
    joined = "".join(re.findall(r'"((?:[^"\\\n]|\\.)*)"', literals))
    joined = re.sub(r"\\([rnt])", " ", joined).replace('\\"', '"')
    return [part for part in re.split(r"%\d", joined) if re.search("[가-힣]", part)]


def call_at(text, start):
    """A call's arguments, from its bracket to the partner."""
    depth = 0
    for found in re.compile(r'"(?:[^"\\\n]|\\.)*"|[(){}]').finditer(text, start):
        depth += {"(": 1, "{": 1, ")": -1, "}": -1}.get(found[0], 0)
        if depth == 0:
            return text[start:found.end()]
    raise ValueError("a call without an end")


def texts_of(text):
    """What the file shows: its sentences, and whatever stands in the calls that open a box."""
    found = [literals[0] for literals in re.finditer(LITERALS, text) if SENTENCE.search("".join(parts_of(literals[0])))]
    calls = [call_at(text, call.end()) for call in CALL.finditer(text)]
    silent = [call for call in calls if not re.search(LITERALS, call) and not BROUGHT.search(call)]
    in_calls = [literals for call in calls for literals in re.findall(LITERALS, call)]
    return [part for literals in found + in_calls for part in parts_of(literals)], silent


def main(root):
    faults = []
    page = (root / "docs/guide/messages.md").read_text()
    index = plain(html.unescape(page))
    forms = plain(" ".join(re.findall(r"^\| (.*?) \|", re.search(r"## 창의 이름(.*?)## ", page, re.S)[1], re.M)))
    files = {str(path.relative_to(root)): source(path) for room in ROOMS for path in sorted((root / room).rglob("*"))
             if path.suffix in (".h", ".cpp")}

    for name, text in files.items():
        if name in UNSEEN:
            continue
        texts, silent = texts_of(text)
        faults += [f"{name}: the text of this box is not found: {' '.join(call.split())}" for call in silent]
        faults += [f"{name}: messages.md lacks: {part.strip()}" for part in texts if plain(part) not in index]

    for screen in sorted((root / "machine/qt/screens").glob("*.ui")):
        form = screen.stem
        homes = [TITLES[form]] if form in TITLES else [name for name in files if f'desktop, u"{form}")' in files[name]]
        titled = LITERALS if form in TITLES else r"(?<![\w.>])set_caption\([^;]*?" + LITERALS + r"\)"
        titles = [part for home in homes for found in re.findall(titled, files[home]) for part in parts_of(found)]
        if not titles:
            faults.append(f"{form}: its title is not found")
        faults += [f"{form}: messages.md lacks its title: {title}" for title in titles if plain(title) not in forms]
    faults += links_astray(root / "docs/guide")
    for fault in dict.fromkeys(faults):
        print(fault)
    return 1 if faults else 0


def links_astray(guide):
    anchors = {page.name: {heading.replace(" ", "-") for heading in re.findall(r"^##+ (.*)$", page.read_text(), re.M)}
               for page in guide.glob("*.md")}
    for page in sorted(guide.glob("*.md")):
        for target in re.findall(r"\]\(([^)]*)\)", page.read_text()):
            name, _, anchor = target.partition("#")
            there = (guide / name).exists() and (not anchor or anchor in anchors[name or page.name])
            if not there and (name.endswith(".md") or (guide / "pictures").is_dir()):
                yield f"{page.name}: {target} leads nowhere"


if __name__ == "__main__":
    sys.exit(main(pathlib.Path(sys.argv[1])))
