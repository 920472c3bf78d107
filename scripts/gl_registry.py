"""Signatures and feature lists of the OpenGL registry, for the scripts that write tables.

The registry is gl.xml of the Debian package khronos-api. Type texts are as in C, with one blank between words and
pointers written as "const GLchar *const *" and "void **".
"""

import re
import xml.etree.ElementTree as ElementTree
from typing import Dict, List, NamedTuple, Tuple

REGISTRY_FILE = "/usr/share/khronos-api/gl.xml"

# The features of OpenGL ES, as (api, feature name).
ES_FEATURES = [
    ("gles1", "GL_VERSION_ES_CM_1_0"),
    ("gles2", "GL_ES_VERSION_2_0"),
    ("gles2", "GL_ES_VERSION_3_0"),
    ("gles2", "GL_ES_VERSION_3_1"),
    ("gles2", "GL_ES_VERSION_3_2"),
]


class Command(NamedTuple):
    result: str
    parameters: List[Tuple[str, str]]  # type text, parameter name


class Registry:
    def __init__(self, path: str = REGISTRY_FILE):
        root = ElementTree.parse(path).getroot()
        # All commands of all APIs, by name.
        self.commands: Dict[str, Command] = {}
        for element in root.iterfind("commands/command"):
            result, name = _declaration(element.find("proto"))
            self.commands[name] = Command(result, [_declaration(p) for p in element.iterfind("param")])
        self._features = {(f.get("api"), f.get("name")): f for f in root.iterfind("feature")}
        self._extensions = {e.get("name"): e for e in root.iterfind("extensions/extension")}

    def feature_commands(self, api: str, feature: str) -> List[str]:
        """The commands that this feature adds, in the registry's order; each later version is a feature of its own."""
        return [
            command.get("name")
            for require in self._features[api, feature].iterfind("require")
            if require.get("api", api) == api
            for command in require.iterfind("command")
        ]

    def features(self, api: str) -> List[str]:
        """Names of the features of an API, oldest first."""
        return [name for of, name in self._features if of == api]

    def extensions(self, api: str) -> List[str]:
        """Names of the extensions that exist for an API, in the registry's order."""
        return [n for n, e in self._extensions.items() if api in e.get("supported", "").split("|")]

    def extension_commands(self, api: str, extension: str) -> List[str]:
        """The commands that this extension adds to an API."""
        return [
            command.get("name")
            for require in self._extensions[extension].iterfind("require")
            if require.get("api", api) == api
            for command in require.iterfind("command")
        ]


def _declaration(element: ElementTree.Element) -> Tuple[str, str]:
    """Type text and name of <proto> or <param>."""
    name = element.findtext("name")
    text = " ".join("".join(element.itertext()).split())
    # The registry has no arrays such as "const GLfloat m[16]", whose type would be lost without the name.
    if not text.endswith(name):
        raise ValueError(f'registry: declaration "{text}" does not end in its name "{name}"')
    return re.sub(r" *\*", " *", text[: -len(name)].strip()).replace("* *", "**"), name
