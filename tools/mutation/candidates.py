"""Finds the places of a source that can be made wrong, from clang's syntax tree.

A mutant is a range of bytes in a file and a template for what stands there instead: @ID@ is the mutant's number, @WAS@ the
range's own text, with the other mutants inside it woven in. Everything else in a template is the file's text as it was.
"""

import json
import re
import shlex
import subprocess
from collections import Counter
from dataclasses import dataclass, replace
from pathlib import Path

from clang import cindex
from clang.cindex import CursorKind as K
from clang.cindex import TypeKind as T

ON = "KTUI_MUTANT(@ID@)"

EXPRESSION, STATEMENT, SEQUENCE = 0, 1, 2  # which template goes outside when ranges are the same

FUNCTIONS = {K.FUNCTION_DECL, K.CXX_METHOD, K.CONSTRUCTOR, K.DESTRUCTOR, K.CONVERSION_FUNCTION, K.FUNCTION_TEMPLATE}
LOOPS = {K.WHILE_STMT, K.DO_STMT, K.FOR_STMT}
WRAPPERS = {K.UNEXPOSED_EXPR}
NUMBERS = {
    T.BOOL, T.CHAR_U, T.UCHAR, T.CHAR16, T.CHAR32, T.USHORT, T.UINT, T.ULONG, T.ULONGLONG, T.CHAR_S, T.SCHAR, T.WCHAR,
    T.SHORT, T.INT, T.LONG, T.LONGLONG, T.FLOAT, T.DOUBLE, T.ENUM,
}
EDGES = {"<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "=="}
LOGIC = {"&&": "||", "||": "&&"}
ARITHMETIC = {"+": "-", "-": "+", "*": "+", "/": "*", "%": "/", "&": "|", "<<": ">>", ">>": "<<"}
DRAWING = re.compile(
    r"\b(Draw\w*|Fill\w*|FrameRect|Rectangle|TextOut\w*|ExtTextOut\w*|LineTo|MoveTo\w*|BitBlt|StretchBlt|Polyline|Polygon"
    r"|Ellipse|SetPixel\w*|SetTextColor|SetBkMode|SetBkColor|SelectObject|InvertRect|PatBlt|RoundRect|Invalidate\w*)\s*\("
)


@dataclass(frozen=True)
class Mutant:
    file: str  # below the root
    line: int
    function: str
    kind: str
    begin: int  # bytes
    end: int
    template: str
    level: int
    before: str
    after: str
    place: str = ""  # tells it from others of its function that change the same text

    def signature(self):
        """What names this mutant when lines have moved."""
        named = (self.file, self.function, self.kind, _short(self.before), _short(self.after))
        return " | ".join(named + ((self.place,) if self.place else ()))


def _short(text):
    return re.sub(r"\s+", " ", text).strip()[:160].replace("|", "¦")


def tell_apart(mutants, root):
    """Gives those that a signature doesn't name alone the text of their line, and a number where that is the same too."""
    texts, told = {}, []
    counts = Counter(m.signature() for m in mutants)
    for mutant in mutants:
        if counts[mutant.signature()] > 1:
            if mutant.file not in texts:
                texts[mutant.file] = (Path(root) / mutant.file).read_text().splitlines()
            mutant = replace(mutant, place="in " + _short(texts[mutant.file][mutant.line - 1]))
        told.append(mutant)
    seen = Counter()
    for number, mutant in enumerate(told):
        seen[mutant.signature()] += 1
        if seen[mutant.signature()] > 1:
            told[number] = replace(mutant, place=f"{mutant.place} ({seen[mutant.signature()]})")
    return told


def _macro_calls(data):
    """The ranges of calls of macros, by their names in upper case: what stands inside them has no places of its own."""
    calls = []
    for found in re.finditer(rb"\b[A-Z][A-Z0-9_]{2,}\(", data):
        depth, at = 1, found.end()
        while at < len(data) and depth:
            depth += {b"(": 1, b")": -1}.get(data[at : at + 1], 0)
            at += 1
        calls.append((found.start(), at))
    return calls


def _independent(first, second):
    """Whether two plain assignments of values to different places may stand either way round."""
    sides = [re.fullmatch(r"([\w.>\[\]-]+)\s*=\s*([^()]*);", text, flags=re.S) for text in (first, second)]
    if not all(sides):
        return False
    return sides[0].group(1) not in second and sides[1].group(1) not in first


@dataclass
class Weakening:
    """A constexpr that has to go so that its value can be switched."""

    file: str
    begin: int
    end: int
    replacement: str
    name: str
    body: tuple  # the bytes whose mutants need it


def clang_arguments(command, spare_headers):
    """The arguments of a compile command that clang needs to read the file, for MinGW with g++'s own headers."""
    words = shlex.split(command)
    compiler = next(w for w in words if "g++" in w or w.endswith("c++"))
    arguments, keep_next = [], False
    skip_next = False
    for word in words[words.index(compiler) + 1 :]:
        if skip_next:
            skip_next = False
        elif keep_next:
            arguments.append(word)
            keep_next = False
        elif word in ("-o", "-c", "-include", "-MF", "-MT", "-MQ"):
            skip_next = True
        elif word in ("-isystem", "-I", "-D"):
            arguments.append(word)
            keep_next = True
        elif word.startswith(("-I", "-D", "-std", "-isystem")):
            arguments.append(word)
    if "mingw" in compiler:
        version = subprocess.run([compiler, "-dumpversion"], capture_output=True, text=True).stdout.strip()
        library = f"/usr/lib/gcc/x86_64-w64-mingw32/{version}/include/c++"
        arguments += ["--target=x86_64-w64-mingw32", "-nostdinc++", "-isystem", library,
                      "-isystem", f"{library}/x86_64-w64-mingw32", "-isystem", "/usr/x86_64-w64-mingw32/include"]
    for header in spare_headers:
        arguments += ["-include", header]
    resources = subprocess.run(["clang", "-print-resource-dir"], capture_output=True, text=True, check=True).stdout.strip()
    return arguments + ["-resource-dir", resources, "-w", "-ferror-limit=0"]


class Finder:
    """Reads translation units and gathers the mutants of the files of one room."""

    def __init__(self, root, files):
        self.root = Path(root)
        self.files = {str(f): f.read_bytes() for f in files}
        self.mutants = {}
        self.weakenings = {}
        self.macros = {}
        self.done = set()
        self.index = cindex.Index.create()

    def read(self, file, arguments):
        unit = self.index.parse(str(file), arguments)
        fatal = [d for d in unit.diagnostics if d.severity >= cindex.Diagnostic.Error]
        if fatal:
            raise RuntimeError(f"{file}: {fatal[0].spelling} at {fatal[0].location}")
        own = []
        for cursor in unit.cursor.get_children():
            where = cursor.location.file
            if where is not None and where.name in self.files and where.name not in self.done:
                own.append((cursor, where.name))
        names = {name for _, name in own}
        for name in names:
            self.macros[name] = _macro_calls(self.files[name])
        for cursor, name in own:
            self._visit(cursor, Context(self, name))
        for name in names:
            self._message_maps(name)
        self.done |= names

    # What stands where

    def text(self, name, begin, end):
        return self.files[name][begin:end].decode("utf-8")

    def _extent(self, cursor, name):
        start, end = cursor.extent.start, cursor.extent.end
        if start.file is None or start.file.name != name or end.file is None or end.file.name != name:
            return None
        b, e = start.offset, end.offset
        for mb, me in self.macros.get(name, ()):
            if mb <= b and e <= me and (b, e) != (mb, me) or b < mb < e < me or mb < b < me < e:
                return None
        return (b, e) if b < e else None

    def _add(self, context, cursor, kind, template, after, extent=None, level=EXPRESSION):
        extent = extent or self._extent(cursor, context.name)
        if not extent or context.constant:
            return
        file = str(Path(context.name).relative_to(self.root))
        before = self.text(context.name, *extent)
        line = self.files[context.name].count(b"\n", 0, extent[0]) + 1
        mutant = Mutant(file, line, context.function, kind, *extent, template, level, before, after)
        self.mutants.setdefault((file, extent, kind, after), mutant)
        for weakening in context.weakenings:
            self.weakenings.setdefault((file, weakening.begin), weakening)

    def _instead(self, context, cursor, kind, after, extent=None):
        """One expression in place of another."""
        self._add(context, cursor, kind, f"({ON} ? ({after}) : (@WAS@))", after, extent)

    # The walk

    def _visit(self, cursor, context):
        kind = cursor.kind
        if kind in FUNCTIONS:
            context = self._function_context(cursor, context)
        elif kind in (K.ENUM_DECL, K.STATIC_ASSERT, K.TEMPLATE_NON_TYPE_PARAMETER, K.TEMPLATE_TYPE_PARAMETER,
                      K.TYPE_ALIAS_DECL, K.TYPEDEF_DECL, K.USING_DECLARATION):
            return
        elif kind == K.VAR_DECL or kind == K.FIELD_DECL:
            context = self._variable_context(cursor, context)
        handler = HANDLERS.get(kind)
        if handler:
            handler(self, cursor, context)
        children = list(cursor.get_children())
        if kind == K.CASE_STMT:
            children = children[1:]
        if kind == K.IF_STMT and self._starts(cursor, context, "if constexpr"):
            children = children[1:]
        if kind in (K.COMPOUND_STMT, K.IF_STMT, K.CASE_STMT, K.DEFAULT_STMT) or kind in LOOPS or kind == K.CXX_FOR_RANGE_STMT:
            self._statements(cursor, children, context)
        for child in children:
            if child.location.file is None or child.location.file.name == context.name:
                self._visit(child, context)

    def _starts(self, cursor, context, words):
        extent = self._extent(cursor, context.name)
        return bool(extent) and self.text(context.name, *extent).startswith(words)

    def _function_context(self, cursor, context):
        name = cursor.spelling
        parent = cursor.semantic_parent
        if parent is not None and parent.kind in (K.CLASS_DECL, K.STRUCT_DECL, K.CLASS_TEMPLATE):
            name = f"{parent.spelling}::{name}"
        inner = context.inside(function=name)
        inner.result = cursor.result_type
        inner.owner = parent.spelling if parent is not None and "::" in name else ""
        extent = self._extent(cursor, context.name)
        if extent:
            head = self.text(context.name, *extent).split("{", 1)[0]
            found = re.search(r"\b(constexpr|consteval)\b", head)
            if found:
                inner.weaken(self, extent, extent[0] + len(head[: found.start()].encode()), len(found.group(0)), "inline",
                             cursor.spelling)
        return inner

    def _variable_context(self, cursor, context):
        extent = self._extent(cursor, context.name)
        if not extent:
            return context
        inner = context.inside(function=context.function or cursor.spelling)
        text = self.text(context.name, *extent)
        found = re.search(r"\bconstexpr\b", text.split("=", 1)[0].split("{", 1)[0])
        begin = extent[0] + len(text[: found.start()].encode()) if found else None
        if not found and context.function:  # `constexpr` of a local stands before the declaration's own extent at times
            line_begin = self.files[context.name].rfind(b"\n", 0, extent[0]) + 1
            head = self.text(context.name, line_begin, extent[0])
            found = re.search(r"\bconstexpr\b", head)
            begin = line_begin + len(head[: found.start()].encode()) if found else None
        if found:
            parent = cursor.semantic_parent
            in_class = parent is not None and parent.kind in (K.CLASS_DECL, K.STRUCT_DECL)
            inner.weaken(self, extent, begin, len("constexpr"), "inline const" if in_class else "const", cursor.spelling)
        return inner

    # Statements

    def _statements(self, cursor, children, context):
        if cursor.kind == K.COMPOUND_STMT:
            statements = children
        elif cursor.kind == K.IF_STMT:
            statements = children[1:]
        else:
            statements = children[-1:] if cursor.kind != K.DO_STMT else children[:1]
        for statement in statements:
            self._statement(statement, context)
        if cursor.kind == K.COMPOUND_STMT:
            self._exchanges(children, context)

    def _is_action(self, cursor):
        if cursor.kind in (K.CALL_EXPR, K.COMPOUND_ASSIGNMENT_OPERATOR, K.CXX_DELETE_EXPR):
            return True
        if cursor.kind in (K.BINARY_OPERATOR, K.UNARY_OPERATOR, K.UNEXPOSED_EXPR, K.CXX_THROW_EXPR):
            return True
        return False

    def _statement(self, cursor, context):
        if self._is_action(cursor):
            extent = self._extent(cursor, context.name)
            if extent:
                text = self.text(context.name, *extent)
                kind = "a drawing call left out" if DRAWING.search(text) else "a statement left out"
                self._add(context, cursor, kind, f"if ({ON}) {{}} else @WAS@", "", level=STATEMENT)
        elif cursor.kind in (K.BREAK_STMT, K.CONTINUE_STMT):
            self._add(context, cursor, "a jump left out", f"if ({ON}) {{}} else @WAS@", "", level=STATEMENT)
        elif cursor.kind == K.RETURN_STMT:
            self._return(cursor, context)

    def _return(self, cursor, context):
        children = list(cursor.get_children())
        extent = self._extent(cursor, context.name)
        if not extent:
            return
        if not children:
            self._add(context, cursor, "a return left out", f"if ({ON}) {{}} else @WAS@", "", level=STATEMENT)
            return
        value = self._extent(children[0], context.name)
        text = self.text(context.name, *value) if value else ""
        canonical = children[0].type.get_canonical().kind
        if canonical == T.BOOL:
            self._add(context, cursor, "a returned value", f"if ({ON}) return !({text}); else @WAS@", f"return !({text})",
                      level=STATEMENT)
        elif canonical in NUMBERS:
            self._add(context, cursor, "a returned value",
                      f"if ({ON}) return ::ktui_mutation::other({text}); else @WAS@", f"return other({text})", level=STATEMENT)
        elif text not in ("{}", "nullptr"):
            self._add(context, cursor, "a returned value", f"if ({ON}) return {{}}; else @WAS@", "return {}", level=STATEMENT)

    def _exchanges(self, children, context):
        """Two neighbouring statements the other way round; pairs don't overlap."""
        previous = None
        for cursor in children:
            extent = self._extent(cursor, context.name)
            if not extent or not self._is_action(cursor):
                previous = None
                continue
            end = self._semicolon(context.name, extent[1])
            if end is None:
                previous = None
                continue
            if previous is None:
                previous = (extent[0], end)
                continue
            first = self.text(context.name, *previous)
            second = self.text(context.name, extent[0], end)
            if first != second and not _independent(first, second):
                whole = (previous[0], end)
                self._add(context, cursor, "statements exchanged", f"if ({ON}) {{ {second} {first} }} else {{ @WAS@ }}",
                          f"{second} {first}", whole, SEQUENCE)
            previous = None

    def _semicolon(self, name, offset):
        data = self.files[name]
        while offset < len(data) and data[offset : offset + 1].isspace():
            offset += 1
        return offset + 1 if data[offset : offset + 1] == b";" else None

    # Conditions and expressions

    def _condition(self, cursor, context, forced):
        extent = self._extent(cursor, context.name)
        if not extent:
            return
        text = self.text(context.name, *extent)
        self._add(context, cursor, "a condition negated", f"({ON} != static_cast<bool>(@WAS@))", f"!({text})")
        for value in forced:
            template = f"({ON} || static_cast<bool>(@WAS@))" if value == "true" else f"(!{ON} && static_cast<bool>(@WAS@))"
            self._add(context, cursor, f"a condition forced {value}", template, value)

    def if_statement(self, cursor, context):
        if self._starts(cursor, context, "if constexpr"):
            return
        children = list(cursor.get_children())
        if children and children[0].kind == K.DECL_STMT and len(children) > 2 and children[1].kind.is_expression():
            self._condition(children[1], context, ("true", "false"))
        elif children and children[0].kind.is_expression():
            self._condition(children[0], context, ("true", "false"))

    def loop(self, cursor, context):
        children = list(cursor.get_children())
        if cursor.kind == K.WHILE_STMT and children[0].kind.is_expression():
            self._condition(children[0], context, ("false",))
        elif cursor.kind == K.DO_STMT and children[-1].kind.is_expression():
            self._condition(children[-1], context, ("false",))
        elif cursor.kind == K.FOR_STMT:
            extent = self._extent(cursor, context.name)
            if not extent:
                return
            first = self.files[context.name].find(b";", extent[0])
            second = self.files[context.name].find(b";", first + 1)
            for child in children:
                inner = self._extent(child, context.name)
                if inner and first < inner[0] and inner[1] <= second and child.kind.is_expression():
                    self._condition(child, context, ("false",))

    def conditional(self, cursor, context):
        self._condition(next(cursor.get_children()), context, ())

    def binary(self, cursor, context):
        children = list(cursor.get_children())
        extent = self._extent(cursor, context.name)
        if len(children) != 2 or not extent:
            return
        left, right = (self._extent(c, context.name) for c in children)
        if not left or not right or left[1] > right[0]:
            return
        operator = re.sub(r"/\*.*?\*/|//[^\n]*", "", self.text(context.name, left[1], right[0]), flags=re.S).strip()
        a, b = self.text(context.name, *left), self.text(context.name, *right)
        if operator in EDGES:
            self._instead(context, cursor, "a comparison's edge", f"({a}) {EDGES[operator]} ({b})")
        elif operator in LOGIC:
            self._instead(context, cursor, "and for or", f"({a}) {LOGIC[operator]} ({b})")
            self._instead(context, cursor, "half a condition", f"static_cast<bool>({a})")
            self._instead(context, cursor, "half a condition", f"static_cast<bool>({b})")
        elif operator == "|":
            self._instead(context, cursor, "a flag dropped", a)
            self._instead(context, cursor, "a flag dropped", b)
        elif operator in ARITHMETIC and cursor.type.get_canonical().kind in NUMBERS:
            self._instead(context, cursor, "arithmetic", f"({a}) {ARITHMETIC[operator]} ({b})")

    def integer(self, cursor, context):
        extent = self._extent(cursor, context.name)
        if not extent:
            return
        text = self.text(context.name, *extent)
        if text in ("TRUE", "FALSE"):
            self._instead(context, cursor, "a constant", "FALSE" if text == "TRUE" else "TRUE")
            return
        self._instead(context, cursor, "a constant by one", f"({text}) + 1")
        digits = re.match(r"(0[xX][0-9a-fA-F']+|[0-9']+)[uUlLzZ]*$", text)
        if digits and int(digits.group(1).replace("'", ""), 0) > 1:
            self._instead(context, cursor, "a constant by a bit", f"({text}) ^ 8")

    def floating(self, cursor, context):
        extent = self._extent(cursor, context.name)
        if extent:
            self._instead(context, cursor, "a constant by one", f"({self.text(context.name, *extent)}) + 1")

    def boolean(self, cursor, context):
        extent = self._extent(cursor, context.name)
        if extent:
            self._instead(context, cursor, "a constant", f"!{self.text(context.name, *extent)}")

    def string(self, cursor, context):
        extent = self._extent(cursor, context.name)
        if not extent:
            return
        text = self.text(context.name, *extent)
        found = re.match(r'^(u8|[LuU])?"(.*)"$', text, flags=re.S)
        if not found or '"' in found.group(2).replace('\\"', ""):
            return
        prefix, inside = found.group(1) or "", found.group(2)
        first = re.match(r"\\(x[0-9a-fA-F]+|[0-7]{1,3}|u[0-9a-fA-F]{4}|.)|.", inside, flags=re.S)
        rest = inside[first.end() :] if first else ""
        letter = "z" if not first or first.group(0) != "z" else "y"
        changed = f'{prefix}"{letter}{rest}"'
        self._add(context, cursor, "a string", f"({ON} ? {changed} : @WAS@)", changed)

    def call(self, cursor, context):
        if cursor.spelling.startswith("operator"):
            return  # its operands are no arguments to a reader; in place of an assignment's left side a copy would stand
        arguments = list(cursor.get_arguments())
        extents = [self._extent(a, context.name) if a is not None else None for a in arguments]
        for i, (argument, extent) in enumerate(zip(arguments, extents)):
            if not extent:
                continue
            text = self.text(context.name, *extent)
            canonical = argument.type.get_canonical().kind
            if canonical in NUMBERS or (canonical == T.POINTER and text not in ("this", "nullptr")):
                if not re.fullmatch(r"[0-9.']+|true|false|TRUE|FALSE|L?\".*\"", text, flags=re.S):
                    self._instead(context, argument, "an argument replaced", f"::ktui_mutation::other({text})", extent)
            if i + 1 < len(arguments) and extents[i + 1]:
                neighbour = arguments[i + 1]
                second = self.text(context.name, *extents[i + 1])
                if neighbour.type.get_canonical().spelling == argument.type.get_canonical().spelling and second != text:
                    self._instead(context, argument, "an argument for its neighbour", second, extent)
        self._direct(cursor, context)

    def _direct(self, cursor, context):
        """A virtual call of the object's own made direct."""
        callee = cursor.referenced
        extent = self._extent(cursor, context.name)
        if callee is None or not extent or callee.kind != K.CXX_METHOD or not context.owner:
            return
        if not callee.is_virtual_method() or callee.is_pure_virtual_method():
            return
        text = self.text(context.name, *extent)
        if text.startswith(callee.spelling + "("):
            self._instead(context, cursor, "a virtual call made direct", f"{context.owner}::{text}")

    def _message_maps(self, name):
        data = self.files[name].decode("utf-8")
        for table in re.finditer(r"^BEGIN_MESSAGE_MAP\((\w+),.*?^END_MESSAGE_MAP", data, flags=re.S | re.M):
            for row in re.finditer(r"^[ \t]+(ON_\w+\((?:[^()]|\([^()]*\))*\))[ \t]*$", table.group(0), flags=re.M):
                begin = len(data[: table.start() + row.start(1)].encode())
                end = begin + len(row.group(1).encode())
                context = Context(self, name)
                context.function = table.group(1)
                self._add(context, None, "a row of a message map left out", "KTUI_MUTANT_ROW(@ID@, @WAS@)", "", (begin, end),
                          STATEMENT)


class Context:
    """Where the walk is: the file, the function, and what has to be weakened for a mutant here."""

    def __init__(self, finder, name):
        self.finder, self.name = finder, name
        self.function, self.owner, self.result = "", "", None
        self.constant, self.weakenings = False, ()

    def inside(self, function):
        inner = Context(self.finder, self.name)
        inner.function, inner.owner, inner.result = function, self.owner, self.result
        inner.constant, inner.weakenings = self.constant, self.weakenings
        return inner

    def weaken(self, finder, extent, begin, length, replacement, name):
        file = str(Path(self.name).relative_to(finder.root))
        weakening = Weakening(file, begin, begin + length, replacement, name, extent)
        self.weakenings = self.weakenings + (weakening,)


HANDLERS = {
    K.IF_STMT: Finder.if_statement,
    K.WHILE_STMT: Finder.loop,
    K.DO_STMT: Finder.loop,
    K.FOR_STMT: Finder.loop,
    K.CONDITIONAL_OPERATOR: Finder.conditional,
    K.BINARY_OPERATOR: Finder.binary,
    K.INTEGER_LITERAL: Finder.integer,
    K.FLOATING_LITERAL: Finder.floating,
    K.CXX_BOOL_LITERAL_EXPR: Finder.boolean,
    K.STRING_LITERAL: Finder.string,
    K.CALL_EXPR: Finder.call,
}


def read_commands(build):
    """File to compile command of a build folder."""
    commands = json.loads((Path(build) / "compile_commands.json").read_text())
    return {entry["file"]: entry["command"] for entry in commands}
