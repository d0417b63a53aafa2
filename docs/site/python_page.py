"""Prints the page of the Python package in Markdown, from its docstrings, which are not run."""

import ast
import inspect
import re
import sys
from pathlib import Path

package = Path(sys.argv[1])


def markdown(text):
    """Of the reStructuredText that is in use: literals, references, examples, tables as they stand."""
    text = re.sub(r":func:`([^`]+)`", r"`\1`", text.replace("``", "`"))
    text = re.sub(r"^(\w+ : .+)\n +", r"- `\1` ", inspect.cleandoc(text), flags=re.MULTILINE)
    result, literal = [], False
    for line in text.splitlines():
        starts = line.startswith((">>>", "====="))
        if not literal and starts:
            result.append("```")
            literal = True
        elif literal and not line:
            result.append("```")
            literal = False
        if line.startswith(">>> import"):
            continue   # of every example the same
        result.append(line)
    return "\n".join(result + (["```"] if literal else []))


def docstrings(tree):
    for node in tree.body:
        if isinstance(node, ast.FunctionDef) and not node.name.startswith("_"):
            yield node.name, f"{node.name}({ast.unparse(node.args)})", ast.get_docstring(node)


modules = {path.stem: ast.parse(path.read_text()) for path in sorted(package.glob("*.py"))}
tree = modules["__init__"]
public = next(ast.literal_eval(node.value) for node in tree.body
              if isinstance(node, ast.Assign) and node.targets[0].id == "__all__")
described = {name: (signature, text) for module in modules.values()
             for name, signature, text in docstrings(module) if name in public}
print("# Python {#python}\n")
print(markdown(ast.get_docstring(tree)))
for name in public:
    if name in described:
        signature, text = described[name]
        print(f"\n## {name} {{#python_{name}}}\n\n```\n{signature}\n```\n\n{markdown(text)}")
backend = next(node for node in modules["_scipy"].body if isinstance(node, ast.ClassDef)
               and ast.get_docstring(node))
print(f"\n## scipy_backend {{#python_scipy_backend}}\n\n{markdown(ast.get_docstring(backend))}")
