"""Signatures and feature lists of the OpenGL registry, for the scripts that write tables.

The registry is gl.xml of the Debian package khronos-api. Type texts are as in C, with one blank between words and
pointers written as "const GLchar *const *" and "void **".
"""

import re
import xml.etree.ElementTree as ElementTree
from typing import Dict, List, NamedTuple, Set, Tuple

REGISTRY_FILE = "/usr/share/khronos-api/gl.xml"

# The features of OpenGL ES, as (api, feature name).
ES_FEATURES = [
    ("gles1", "GL_VERSION_ES_CM_1_0"),
    ("gles2", "GL_ES_VERSION_2_0"),
    ("gles2", "GL_ES_VERSION_3_0"),
    ("gles2", "GL_ES_VERSION_3_1"),
    ("gles2", "GL_ES_VERSION_3_2"),
]


# The vendors whose extensions of ES devices and supported hosts have. Our own are not in the registry.
VENDORS = {"AMD", "ANDROID", "ANGLE", "APPLE", "ARM", "EXT", "INTEL", "KHR", "MESA", "NV", "OES", "OVR", "QCOM"}


class Command(NamedTuple):
    result: str
    parameters: List[Tuple[str, str]]  # type text, parameter name


def load(path: str = REGISTRY_FILE) -> ElementTree.Element:
    """The registry's root, without extensions of ES that are of other vendors or take names of theirs."""
    root = ElementTree.parse(path).getroot()
    extensions, commands = root.find("extensions"), root.find("commands")
    others = {e.get("name").split("_")[1] for e in extensions} - VENDORS
    dropped = [e for e in extensions if _is_for_es_only(e) and _vendors(e) & others]
    for extension in dropped:
        extensions.remove(extension)
    rest = {c.get("name") for c in root.iterfind(".//require/command")}
    gone = {c.get("name") for e in dropped for c in e.iterfind("require/command")} - rest
    for command in [c for c in commands if c.findtext("proto/name") in gone]:
        commands.remove(command)
    return root


def _is_for_es_only(extension: ElementTree.Element) -> bool:
    return set(extension.get("supported", "").split("|")) <= {"gles1", "gles2"}


def _vendors(extension: ElementTree.Element) -> Set[str]:
    """The vendor of its name, and the ends of the names that it requires."""
    names = [item.get("name") for kind in ("enum", "command") for item in extension.iterfind(f"require/{kind}")]
    return {extension.get("name").split("_")[1]} | {re.search("[A-Z]*$", name).group() for name in names}


class Registry:
    def __init__(self, path: str = REGISTRY_FILE):
        root = load(path)
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
