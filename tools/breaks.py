"""The places of a C++ source at which it can be broken, for tools/mutate.py.

Works on the text as clang-format lays it out: binary operators stand between blanks, a statement begins a line.
"""
import collections
import hashlib
import re

Break = collections.namedtuple("Break", "file line kind text diff function")


def blank(text):
    """The text with comments, preprocessor lines and the inside of literals blanked, all else in its place."""
    pattern = (r'//[^\n]*|^[ \t]*#[^\n]*|^[ \t]*(?:using|static_assert)\b[^;]*;|"(?:\\.|[^"\\\n])*"'
               r"|'(?:\\.|[^'\\\n])'")

    def cover(match):
        found = match.group()
        edge = found[0] if found[0] in "\"'" else ""
        return edge + re.sub(r"[^\n]", " ", found[len(edge):len(found) - len(edge)]) + edge

    return re.sub(pattern, cover, text, flags=re.M)


def partner(code, begin):
    """The place of the bracket that closes the one at `begin`."""
    depth = 0
    for i in range(begin, len(code)):
        depth += (code[i] in "([{") - (code[i] in ")]}")
        if depth == 0:
            return i
    return len(code)


def in_function(code):
    """For each line, whether its end is inside of a function's body."""
    answer, open_braces, head = [], [], ""
    for c in code:
        if c == "\n":
            answer.append(bool(open_braces) and open_braces[-1])
        if c == "{":
            open_braces.append(not re.search(r"\b(struct|class|enum|namespace)\b", head))
        elif c == "}" and open_braces:
            open_braces.pop()
        head = "" if c in ";{}" else head + c
    return answer + [False]


REPLACED = {"<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "==", "&&": "||", "||": "&&", "+": "-",
            "-": "+", "*": "/", "/": "*", "%": "*", "+=": "-=", "-=": "+="}
KEYWORDS = ("const constexpr auto static return template friend enum class struct case default public private "
            "protected if for while switch else do try catch using").replace(" ", "|")
DECLARATION = re.compile(rf"(?:{KEYWORDS})\b|[\w:<>,*& ]+[>\w&*] +\w+ *[=({{;]")
PLAIN_DECLARATION = re.compile(r"[\w:<>,* ]+ \w+(?: = (?:[\d.]+|true|false))?;")
LABEL = re.compile(r"\s*(?:case [^:]+(?:::\w+)*|default): ?")


def statements(code):
    """The simple statements of at most three lines that could be left out: (first line, last line)."""
    lines, inside = code.split("\n"), in_function(code)
    found, i = [], 0
    while i < len(lines):
        line = lines[i].strip()
        before = next((lines[k].strip() for k in range(i - 1, -1, -1) if lines[k].strip()), "")
        if line and inside[max(0, i - 1)] and before[-1:] in "{;}:)e" and not line.startswith(("{", "}", "[", ")")):
            for last in range(i, min(i + 3, len(lines))):
                part = "\n".join(lines[i:last + 1])
                if all(part.count(a) == part.count(b) for a, b in ("()", "{}", "[]")) and part.endswith(";"):
                    if not LABEL.match(line):
                        found.append((i, last, before))
                    i = last
                    break
        i += 1
    return found


def edits(text):
    """All breaks of a file: (place, end, replacement, kind)."""
    code = blank(text)
    starts = [0] + [m.end() for m in re.finditer("\n", text)]
    for m in re.finditer(r"(?<= )(<=?|>=?|==|!=|&&|\|\||[-+*/%]|[-+]=)(?= )", code):
        kind = {"<": "edge", ">": "edge", "=": "equality", "!": "equality", "&": "logic", "|": "logic"}
        yield m.start(), m.end(), REPLACED[m.group()], kind.get(m.group()[0], "arithmetic")
    for m in re.finditer(r"\+\+|--", code):
        yield m.start(), m.end(), "--" if m.group() == "++" else "++", "arithmetic"
    for m in re.finditer(r"!(?=[\w(:*])", code):
        yield m.start(), m.end(), "", "negation"
    for m in re.finditer(r"\b(?:if|while)(?: constexpr)? \(", code):
        end = partner(code, m.end() - 1)
        begin = max(m.end(), code.rfind("; ", m.end(), end) + 2)
        yield begin, end, f"!({text[begin:end]})", "condition"
    for m in re.finditer(r"\b(?:0x[0-9A-Fa-f]+|\d+(?:\.\d+)?|true|false)\b(?!\.)", code):
        number = m.group()
        flipped = {"true": "false", "false": "true"}.get(number)
        if flipped is None:
            flipped = hex(int(number, 16) + 1) if "x" in number else str((float if "." in number else int)(number) + 1)
        yield m.start(), m.end(), flipped, "constant"
    for m in re.finditer(r'"[^"\n]*"', code):
        yield m.end() - 1, m.end() - 1, "~", "constant"
    for m in re.finditer(r"'[^'\n]*'", code):
        yield m.start() + 1, m.end() - 1, "~", "constant"
    for m in re.finditer(r"\{ ([^{};\n]+;) \}", code):
        if not DECLARATION.match(m.group(1)):
            yield m.start(1), m.end(1), ";", "drop"
    for m in re.finditer(r"^ *case [^;\n]*?(?<!:):(?!:)(?! ?return)", code, re.M):
        yield m.start(), m.end(), "", "drop"
        rest = re.match(r" ([^;\n]+;) break;", code[m.end():])
        if rest:
            yield m.end() + 1, m.end() + rest.end(1), ";", "drop"
    for m in re.finditer(r"^ *\{[^{}\n]+(?:(?:\{[^{}\n]*\}|\n)[^{}\n]*){0,2}\},$", code, re.M):
        yield m.start(), m.end(), "", "drop"
    simple = statements(code)
    for (first, last, before), (second, end, _) in zip(simple, simple[1:] + [(-1, -1, "")]):
        begin, stop = starts[first], starts[last + 1] - 1
        words = code[begin:stop].strip()
        indent = len(code[begin:stop]) - len(code[begin:stop].lstrip())
        if words == "return;" or not DECLARATION.match(words):
            yield begin + indent, stop, ";", "drop"
        begin2, stop2 = starts[second], starts[end + 1] - 1
        follower = code[begin2:stop2]
        if (second != last + 1 or re.match(r"break|return|continue|throw", words) or before[-1:] in ")e"
                or PLAIN_DECLARATION.fullmatch(words) or PLAIN_DECLARATION.fullmatch(follower.strip())):
            continue
        if re.match(r" " * indent + r"(?!(?:break|return|continue|throw|static)\b)\w", follower):
            yield begin, stop2, text[begin2:stop2] + "\n" + text[begin:stop], "swap"


def breaks(root, file):
    """All breaks of a file of the checkout."""
    text = (root / file).read_text()
    lines = text.splitlines()
    for begin, end, replacement, kind in edits(text):
        broken = text[:begin] + replacement + text[end:]
        line = text.count("\n", 0, begin) + 1
        low, high = text.rfind("\n", 0, begin) + 1, text.find("\n", end)
        diff = tuple(f"{sign} {part.strip()}".strip() for sign, part in (
            [("-", part) for part in text[low:high].splitlines()] +
            [("+", part) for part in broken[low:high + len(broken) - len(text)].splitlines()]))
        names = [re.search(r"(~?\w+)\(", h) for h in lines[:line] if re.match(r"[A-Za-z]", h)]
        function = next((n.group(1) for n in reversed(names) if n), "")
        yield Break(file, line, kind, broken, diff, function)


def rank(seed, item):
    return hashlib.sha256(repr((seed, item.file, item.kind, item.function, item.diff)).encode()).digest()


def choose(root, folder, count, seed):
    """All places of the folder, and so many breaks of them, taken file by file in turns of kinds."""
    found = {}
    for path in sorted((root / "src" / folder).rglob("*"), key=lambda path: (path.suffix, path)):
        if path.suffix in (".cpp", ".h"):
            file = str(path.relative_to(root))
            found[file] = list(breaks(root, file))
    places = sum(map(len, found.values()))
    chosen = []
    for file, items in found.items():
        # What every source includes costs a build of nearly everything: such a file gives fewer.
        least, weight = (1, 0.25) if file.endswith(".h") else (2, 1)
        wanted = min(len(items), max(least, round(weight * count * len(items) / max(1, places))))
        kinds = collections.defaultdict(list)
        for item in sorted(items, key=lambda item: rank(seed, item)):
            kinds[item.kind].append(item)
        turns = [item for turn in range(len(items)) for kind in sorted(kinds) for item in kinds[kind][turn:turn + 1]]
        chosen += turns[:wanted]
    return places, chosen
