"""Finds what can be mutated in a source file, by its syntax tree, and writes the file with all mutants in it.

A mutant is a small wrong change: another comparison, another sign, a constant one off, a statement left out, another
result. `a < b` becomes `mutant::Pick<std::less<>, std::less_equal<>, std::greater_equal<>>(17, a, b)`, which is `a < b` unless mutant 17 or 18 is awake.
"""

import dataclasses
import re
import sys

sys.path.append("/usr/lib/python3/dist-packages")  # where Debian keeps python3-clang-14
from clang import cindex  # pylint: disable=wrong-import-position

K = cindex.CursorKind

# Operator: what becomes of it, and the helper's types.
BINARY = {
    "<": (["<=", ">="], "std::less<>, std::less_equal<>, std::greater_equal<>"),
    "<=": (["<", ">"], "std::less_equal<>, std::less<>, std::greater<>"),
    ">": ([">=", "<="], "std::greater<>, std::greater_equal<>, std::less_equal<>"),
    ">=": ([">", "<"], "std::greater_equal<>, std::greater<>, std::less<>"),
    "==": (["!="], "std::equal_to<>, std::not_equal_to<>, void"),
    "!=": (["=="], "std::not_equal_to<>, std::equal_to<>, void"),
    "+": (["-"], "std::plus<>, std::minus<>, void"),
    "-": (["+"], "std::minus<>, std::plus<>, void"),
    "*": (["/"], "std::multiplies<>, std::divides<>, void"),
    "/": (["*"], "std::divides<>, std::multiplies<>, void"),
    "%": (["*"], "std::modulus<>, std::multiplies<>, void"),
    "+=": (["-="], "mutant::AddTo, mutant::SubTo, void"),
    "-=": (["+="], "mutant::SubTo, mutant::AddTo, void"),
    "*=": (["/="], "mutant::MulTo, mutant::DivTo, void"),
    "/=": (["*="], "mutant::DivTo, mutant::MulTo, void"),
}
RELATIONS = {"<", "<=", ">", ">=", "==", "!="}
FUNCTIONS = {K.FUNCTION_DECL, K.CXX_METHOD, K.CONSTRUCTOR, K.DESTRUCTOR, K.CONVERSION_FUNCTION, K.FUNCTION_TEMPLATE}
LOOPS = {K.IF_STMT: 0, K.WHILE_STMT: 0, K.CONDITIONAL_OPERATOR: 0, K.DO_STMT: 1}
NUMBERS = {cindex.TypeKind.INT, cindex.TypeKind.UINT, cindex.TypeKind.LONG, cindex.TypeKind.ULONG,
           cindex.TypeKind.DOUBLE, cindex.TypeKind.FLOAT, cindex.TypeKind.LONGLONG, cindex.TypeKind.ULONGLONG,
           cindex.TypeKind.SHORT, cindex.TypeKind.USHORT, cindex.TypeKind.CHAR_S, cindex.TypeKind.UCHAR,
           cindex.TypeKind.SCHAR, cindex.TypeKind.BOOL}
# What returns the same as {} already.
EMPTY_RESULTS = {"{}", "0", "0.0", "false", '""', "nullptr", "std::nullopt", "true"}


@dataclasses.dataclass
class Change:
    """One place, with one mutant or several that share the rewriting."""
    start: int
    end: int
    prefix: str      # with {0}, {1} for the mutants' numbers and {is} for the question
    suffix: str
    names: list      # what each mutant does
    line: int
    operator: tuple = None   # (start, end, text): what stands for the operator
    statement: tuple = (0, 0)  # the lines of the statement around it
    constant: bool = False   # inside a constexpr function
    depth: int = 0
    first: int = 0           # number of the first mutant
    left_out: bool = False   # it does not compile


class Finder:
    """Walks one file."""

    def __init__(self, path, arguments):
        self.path = str(path)
        with open(path, encoding="utf-8") as file:
            self.text = file.read()
        self.bytes = self.text.encode("utf-8")
        self.changes = {}
        self.unfixed = []    # (offset, replacement) for constexpr variables, so that their values can change
        self.order = 0
        unit = cindex.Index.create().parse(self.path, args=arguments)
        errors = [str(d) for d in unit.diagnostics if d.severity >= cindex.Diagnostic.Error]
        if errors:
            raise RuntimeError("\n".join(errors))
        self.walk_children(unit.cursor, Context())

    def source(self, start, end):
        return self.bytes[start:end].decode("utf-8")

    def add(self, key, start, end, prefix, suffix, names, context, line, operator=None):
        if (key, start, end) in self.changes or context.skip:
            return
        self.order += 1
        self.changes[key, start, end] = Change(start, end, prefix, suffix, names, line, operator, context.statement,
                                               context.constant, self.order)

    def walk_children(self, cursor, context):
        for child in cursor.get_children():
            if child.location.file and child.location.file.name != self.path:
                continue
            self.visit(child, cursor, context)

    def visit(self, cursor, parent, context):
        kind = cursor.kind
        start, end = cursor.extent.start.offset, cursor.extent.end.offset
        if kind in (K.STATIC_ASSERT, K.ENUM_DECL):
            return
        if kind == K.CALL_EXPR and cursor.spelling == "reserve":
            return  # room that is set aside is no result
        if kind in FUNCTIONS:
            head = self.source(start, min(end, start + 200)).split("(")[0]
            context = context.inside_function("constexpr" in head.split() or "consteval" in head.split(),
                                              cursor.result_type)
        elif kind == K.LAMBDA_EXPR:
            context = context.inside_lambda()
        elif kind == K.VAR_DECL:
            self.unfix(cursor, parent)
        if parent.kind in (K.COMPOUND_STMT, K.CASE_STMT, K.DEFAULT_STMT) or kind in (K.VAR_DECL, K.FIELD_DECL):
            context = context.at(cursor.extent.start.line, cursor.extent.end.line)
        self.mutate(cursor, parent, context, start, end)
        if kind == K.CASE_STMT:
            for child in list(cursor.get_children())[1:]:
                self.visit(child, cursor, context)
            return
        self.walk_children(cursor, context)

    def unfix(self, cursor, parent):
        """A constexpr variable becomes a plain one."""
        for token in cursor.get_tokens():
            if token.spelling == cursor.spelling:
                return
            if token.spelling == "constexpr":
                inside_class = parent.kind in (K.CLASS_DECL, K.STRUCT_DECL, K.CLASS_TEMPLATE)
                self.unfixed.append((token.extent.start.offset, "inline   " if inside_class else " " * 9,
                                     cursor.extent.start.line, cursor.extent.end.line, cursor.spelling))
                return

    def mutate(self, cursor, parent, context, start, end):
        kind, line = cursor.kind, cursor.extent.start.line
        children = list(cursor.get_children())
        if parent.kind in (K.COMPOUND_STMT, K.CASE_STMT, K.DEFAULT_STMT):
            self.drop(cursor, children, context, start, end, line)
        if kind in (K.INTEGER_LITERAL, K.FLOATING_LITERAL, K.CHARACTER_LITERAL, K.STRING_LITERAL,
                    K.CXX_BOOL_LITERAL_EXPR):
            self.literal(cursor, context, start, end, line)
        elif kind in (K.BINARY_OPERATOR, K.COMPOUND_ASSIGNMENT_OPERATOR) and len(children) == 2:
            self.binary(children[0], children[1], None, context, line,
                        all(c.type.get_canonical().kind in NUMBERS for c in children))
        elif kind == K.CALL_EXPR and cursor.spelling.startswith("operator") and len(children) == 3:
            middle = children[1]
            if middle.spelling == cursor.spelling:
                numeric = any("Checked" in c.type.spelling for c in (cursor, children[0], children[2]))
                self.binary(children[0], children[2], middle, context, line, numeric)
        elif kind in (K.UNARY_OPERATOR,):
            self.unary(cursor, children, context, start, end, line)
        elif kind == K.RETURN_STMT and children:
            self.result(children[0], context, start, line)
        if kind in LOOPS and len(children) > LOOPS[kind]:
            self.condition(children[LOOPS[kind]], context)

    def literal(self, cursor, context, start, end, line):
        text = self.source(start, end)
        following = self.source(end, end + 2)
        if re.match(r"[\w>]", following):
            return  # it has a suffix of its own, or is the argument of a template
        kind = cursor.kind
        if kind == K.CXX_BOOL_LITERAL_EXPR and text in ("true", "false"):
            self.add("literal", start, end, "({is}({0}) != ", ")", [f"{text} flipped"], context, line)
        elif kind == K.STRING_LITERAL and text.startswith('"'):
            other = '""' if text != '""' else '"?"'
            self.add("literal", start, end, f"({{is}}({{0}}) ? {other} : ", ")", [f"{text} -> {other}"], context, line)
        elif kind == K.CHARACTER_LITERAL and text.startswith("'"):
            self.add("literal", start, end, f"({{is}}({{0}}) ? static_cast<char>({text} + 1) : ", ")",
                     [f"{text} -> the next"], context, line)
        elif kind in (K.INTEGER_LITERAL, K.FLOATING_LITERAL) and text[0] in "0123456789.":
            self.add("literal", start, end,
                     f"({{is}}({{0}}) ? ({text} + 1) : {{is}}({{1}}) ? ({text} - 1) : ", ")",
                     [f"{text} + 1", f"{text} - 1"], context, line)

    def binary(self, left, right, middle, context, line, numeric):
        start, end = left.extent.start.offset, right.extent.end.offset
        if middle is None:
            after, before = left.extent.end.offset, right.extent.start.offset
            gap = self.source(after, before)
            sign = gap.strip()
            place = after + len(gap) - len(gap.lstrip())
        else:
            place = middle.extent.start.offset
            if not left.extent.end.offset <= place < right.extent.start.offset:
                return
            match = re.match(r"<=>|[<>=!+\-*/%]=|&&|\|\||[<>+\-*/%=]", self.source(place, place + 3))
            sign = match.group(0) if match else ""
        span = (place, place + len(sign))
        if sign in BINARY and (numeric or sign in RELATIONS):
            names, types = BINARY[sign]
            self.add("binary", start, end, f"mutant::Pick<{types}>({{0}}, ", ")",
                     [f"{sign} -> {other}" for other in names], context, line, (*span, ","))
        elif sign == "&&" and middle is None:
            self.add("binary", start, end, "((bool(", ") : {is}({0}))", ["&& -> ||"], context, line,
                     (*span, ") != {is}({0})) ? bool("))
        elif sign == "||" and middle is None:
            self.add("binary", start, end, "((bool(", "))", ["|| -> &&"], context, line,
                     (*span, ") != {is}({0})) ? !{is}({0}) : bool("))

    def unary(self, cursor, children, context, start, end, line):
        text = self.source(start, end)
        operand = self.source(children[0].extent.start.offset, children[0].extent.end.offset)
        if text.startswith("!"):
            self.add("not", start, end, "({is}({0}) != ", ")", ["! left out"], context, line)
        elif text.startswith("--") or text.startswith("++"):
            other = "++" if text.startswith("--") else "--"
            if re.fullmatch(r"[\w.>\-]+", operand):
                self.add("unary", start, end, f"({{is}}({{0}}) ? {other}{operand} : ", ")",
                         [f"{text} -> {other}{operand}"], context, line)
        elif text.startswith("-"):
            self.add("unary", start, end, f"({{is}}({{0}}) ? ({text[1:]}) : ", ")", ["- left out"], context, line)

    def tested(self, cursor):
        """The expression inside what the tree puts around it."""
        while cursor.kind in (K.UNEXPOSED_EXPR, K.PAREN_EXPR):
            inner = [c for c in cursor.get_children()]
            if len(inner) != 1:
                break
            cursor = inner[0]
        return cursor

    def asks_itself(self, cursor):
        """Whether a condition has mutants of its own that turn it around."""
        inner = self.tested(cursor)
        text = self.source(cursor.extent.start.offset, cursor.extent.end.offset)
        if text.startswith("!") or inner.kind == K.CXX_BOOL_LITERAL_EXPR:
            return True
        return inner.kind in (K.BINARY_OPERATOR,) or (
            inner.kind == K.CALL_EXPR and inner.spelling in ("operator==", "operator!=", "operator<", "operator<=>",
                                                             "operator>", "operator<=", "operator>="))

    def condition(self, cursor, context):
        if cursor.kind in (K.DECL_STMT, K.VAR_DECL) or self.asks_itself(cursor):
            return
        start, end = cursor.extent.start.offset, cursor.extent.end.offset
        self.add("condition", start, end, "({is}({0}) != bool(", "))", ["condition turned around"], context,
                 cursor.extent.start.line)

    def result(self, cursor, context, start, line):
        text = self.source(cursor.extent.start.offset, cursor.extent.end.offset)
        if context.result is not None and context.result.get_canonical().kind == cindex.TypeKind.BOOL:
            if text not in ("true", "false") and not self.asks_itself(cursor):
                self.add("condition", cursor.extent.start.offset, cursor.extent.end.offset, "({is}({0}) != bool(",
                         "))", ["result turned around"], context, line)
            return
        inner = self.tested(cursor)
        if text in EMPTY_RESULTS or (inner.kind == K.DECL_REF_EXPR and inner.referenced is not None and
                                     inner.referenced.kind == K.ENUM_CONSTANT_DECL and
                                     inner.referenced.enum_value == 0):
            return
        self.add("result", start, cursor.extent.end.offset, "if ({is}({0})) return {}; ", "", ["returns {}"], context,
                 line)

    def drop(self, cursor, children, context, start, end, line):
        text = " ".join(self.source(start, end).split())
        plain = cursor.kind in (K.BREAK_STMT, K.CONTINUE_STMT) or (cursor.kind == K.RETURN_STMT and not children)
        if plain or (cursor.kind.is_expression() and cursor.kind != K.CXX_THROW_EXPR):
            self.add("drop", start, end, "if (!{is}({0})) ", "", [f"left out: {text[:60]}"], context, line)


@dataclasses.dataclass(frozen=True)
class Context:
    """What is around the place of the walk."""
    constant: bool = False
    skip: bool = False
    result: object = None
    statement: tuple = (0, 0)

    def inside_function(self, constant, result):
        return dataclasses.replace(self, constant=constant, result=result)

    def inside_lambda(self):
        return dataclasses.replace(self, result=None)

    def at(self, first, last):
        return dataclasses.replace(self, statement=(first, last))


def written(finder, changes, unfixed):
    """The text of the file with these changes in it; lines keep their numbers."""
    pieces = []  # (offset, rank, text): what goes in at an offset, closing before opening
    cuts = []
    for change in (c for c in changes if not c.left_out):
        numbers = [change.first + i for i in range(len(change.names))]
        ask = "mutant::IsC" if change.constant else "mutant::Is"

        def fill(text, numbers=numbers, ask=ask):
            for i, number in enumerate(numbers):
                text = text.replace("{%d}" % i, str(number))
            return text.replace("{is}", ask)

        pieces.append((change.start, (1, -change.end, change.depth), fill(change.prefix)))
        pieces.append((change.end, (0, -change.start, -change.depth), fill(change.suffix)))
        if change.operator:
            first, last, text = change.operator
            cuts.append((first, last, fill(text)))
    cuts += [(offset, offset + len("constexpr"), text) for offset, text, *_ in unfixed]
    # A cut goes in as a piece that swallows what stands there.
    everything = sorted([(o, r, t, o) for o, r, t in pieces] + [(f, (2, 0, 0), t, l) for f, l, t in cuts])
    out, at = [], 0
    for offset, _, text, until in everything:
        out.append(finder.bytes[at:offset].decode("utf-8"))
        out.append(text)
        at = until
    out.append(finder.bytes[at:].decode("utf-8"))
    return '#include "mutant.h"\n#line 1\n' + "".join(out)
