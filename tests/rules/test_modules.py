# test_modules.py - the built files: what they show to others and what they need.
import re
import subprocess

import pytest
from sources import ROOT

# What each file exports, on Linux and on Windows. The resources of a Windows module are no exports.
MODULE_EXPORTS = {"BREVANTA.CRX": {"Brevanta", "EditBrevanta", "mergeLibraryFiles"},
                  "BREVANTA_D.CRX": {"Dialog", "EraseWindow"}}
HOST_EXPORTS = {"GetExport2D", "GetDialogServices"}
ON_LINUX = {**MODULE_EXPORTS, "Brevanta_d.tkr": {"TeskarStringTable"}, "teskarlt": HOST_EXPORTS}
ON_WINDOWS = {**MODULE_EXPORTS, "Brevanta_d.tkr": set(), "TESKARLT.EXE": HOST_EXPORTS}

# Every Windows has these; the compiler's own libraries are inside the modules.
WINDOWS_LIBRARIES = {"KERNEL32.dll", "msvcrt.dll", "USER32.dll", "ADVAPI32.dll", "SHELL32.dll", "ole32.dll"}


def output(*command):
    return subprocess.run(command, capture_output=True, text=True, check=True).stdout


def built(preset, name):
    path = ROOT / "build" / preset / "bin" / name
    assert path.exists(), f"{path} has not been built"
    return path


def elf_exports(path):
    rows = [line.split() for line in output("nm", "-D", "--defined-only", str(path)).splitlines()]
    return {row[-1].split("@")[0] for row in rows}


def headers_of(path):
    return output("x86_64-w64-mingw32-objdump", "-p", str(path))


def dll_exports(path):
    table = headers_of(path).partition("[Ordinal/Name Pointer] Table")[2].partition("\n\n")[0]
    return set(re.findall(r"^\s+\[\s*\d+\]\s+(?:\+base\[\s*\d+\]\s+\S+\s+)?(\S+)$", table, re.M))


@pytest.mark.parametrize("name", ON_LINUX)
def test_exports_on_linux(name):
    assert elf_exports(built("linux", name)) == ON_LINUX[name]


@pytest.mark.parametrize("name", ON_WINDOWS)
def test_exports_on_windows(name):
    assert dll_exports(built("windows", name)) == ON_WINDOWS[name]


@pytest.mark.parametrize("name", ON_WINDOWS)
def test_windows_files_need_only_what_every_windows_has(name):
    needed = set(re.findall(r"DLL Name: (\S+)", headers_of(built("windows", name))))
    assert needed <= WINDOWS_LIBRARIES


def test_strings_are_resources_of_the_windows_module():
    assert ".rsrc" in output("x86_64-w64-mingw32-objdump", "-h", str(built("windows", "Brevanta_d.tkr")))
