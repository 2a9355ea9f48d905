#!/usr/bin/env python3
"""Static checks over the product's sources: clang-tidy and cppcheck, in parallel, remembered by content.

A file is looked at again only when it, a header it includes, the checks or this script changed. Needs a configured and
built tree (build/mingw): the compile commands and the dependency log of the build are what it goes by.

    scripts/lint.py            everything that ships: platform/, commonwnd/, host/
    scripts/lint.py FILE...    these sources only
"""

import concurrent.futures
import hashlib
import json
import os
import pathlib
import shlex
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
BUILD = ROOT / "build" / "mingw"
CACHE = ROOT / "build" / "lint"
TIDY = "clang-tidy-19"
PRODUCT_FOLDERS = ("platform/", "commonwnd/", "host/")
MINGW_INCLUDE = "/usr/x86_64-w64-mingw32/include"

# cppcheck: what it is asked for, and what it is not, with the reason.
CPPCHECK = [
    "cppcheck", "--quiet", "--platform=win64", "--library=windows", "--std=c++20", "--inline-suppr",
    "--enable=warning,performance,portability", "--error-exitcode=1",
    "--template={file}:{line}: {severity}: {message} [{id}]",
    # The compiler finds missing and broken headers; cppcheck is not given the system's.
    "--suppress=missingInclude", "--suppress=missingIncludeSystem",
    # It gives up on a few templates of the standard library and says so as if it were a fault of ours.
    "--suppress=syntaxError", "--suppress=internalAstError", "--suppress=preprocessorErrorDirective",
    # Message map macros are unknown to it without the framework's header; the compiler checks them.
    "--suppress=unknownMacro",
    # A window that lives by itself is found again by its class or owner: its handle need not be kept.
    "--suppress=ignoredReturnValue",
    # A string is taken for the buffer that it is copied from.
    "--suppress=danglingLifetime",
    # What a constructor's body computes with a list of faults beside it has no place in the initialisation list.
    "--suppress=useInitializationList",
    # Members that the framework fills (m_ofn, m_lpCmdLine) look uninitialised from here; clang-tidy checks ours.
    "--suppress=uninitMemberVar", "--suppress=uninitMemberVarPrivate", "--suppress=uninitDerivedMemberVar",
]


def compiler_folder():
    out = subprocess.run(["x86_64-w64-mingw32-g++-posix", "-print-libgcc-file-name"], check=True,
                         capture_output=True, text=True)
    return pathlib.Path(out.stdout.strip()).parent


def tidy_flags(command):
    """The flags of the compiler that also mean something to clang-tidy: defines and include folders."""
    words = shlex.split(command)
    kept = []
    for index, word in enumerate(words):
        if word.startswith(("-D", "-I", "-std=")):
            kept.append(word)
        elif word == "-isystem":
            kept += [word, words[index + 1]]
    gcc = compiler_folder() / "include" / "c++"
    return kept + ["--target=x86_64-w64-mingw32", "-nostdinc++", f"-isystem{gcc}",
                   f"-isystem{gcc}/x86_64-w64-mingw32", f"-isystem{MINGW_INCLUDE}", "-Wno-unknown-pragmas"]


def product_sources(wanted):
    """Source -> compile command, of the sources that are wanted."""
    sources = {}
    for entry in json.loads((BUILD / "compile_commands.json").read_text()):
        path = pathlib.Path(entry["file"])
        if path.suffix != ".cpp" or not path.is_relative_to(ROOT):
            continue
        name = str(path.relative_to(ROOT))
        if name in wanted or (not wanted and name.startswith(PRODUCT_FOLDERS)):
            sources[name] = entry["command"]
    return sources


def included_headers():
    """Source -> our own headers that it includes, from the build's dependency log."""
    log = subprocess.run(["ninja", "-C", str(BUILD), "-t", "deps"], check=True, capture_output=True, text=True)
    headers, names = {}, []
    for line in log.stdout.splitlines() + [""]:
        if line.startswith("    "):
            names.append(pathlib.Path(os.path.normpath(BUILD / line.strip())))
        elif not line and names:
            ours = sorted(str(n.relative_to(ROOT)) for n in names if n.is_relative_to(ROOT))
            for name in ours:
                if name.endswith(".cpp"):
                    headers[name] = [n for n in ours if n != name]
            names = []
    return headers


def content_key(paths, *texts):
    digest = hashlib.sha256()
    for path in paths:
        digest.update(path.encode())
        digest.update((ROOT / path).read_bytes())
    for text in texts:
        digest.update(text.encode())
    return digest.hexdigest()


def remembered(key):
    return (CACHE / key).exists()


def remember(key):
    CACHE.mkdir(parents=True, exist_ok=True)
    (CACHE / key).touch()


def run_tidy(name, flags):
    result = subprocess.run([TIDY, "--quiet", str(ROOT / name), "--", *flags], capture_output=True, text=True)
    problems = result.stdout.strip()
    if result.returncode != 0 and not problems:
        problems = result.stderr.strip()
    return problems


def check_tidy(name, command, headers):
    flags = tidy_flags(command)
    key = "tidy-" + content_key([name, *headers, ".clang-tidy", "scripts/lint.py"], " ".join(flags))
    if remembered(key):
        return ""
    problems = run_tidy(name, flags)
    if not problems:
        remember(key)
    return problems.replace(str(ROOT) + "/", "")


def check_cppcheck(name, command, headers):
    words = [w for w in shlex.split(command) if w.startswith(("-I", "-D"))]
    key = "cppcheck-" + content_key([name, *headers, "scripts/lint.py"], " ".join(words))
    if remembered(key):
        return ""
    result = subprocess.run([*CPPCHECK, *words, name], cwd=ROOT, capture_output=True, text=True)
    problems = (result.stdout + result.stderr).strip().replace(str(ROOT) + "/", "")
    if not problems:
        remember(key)
    return problems


def main():
    sources = product_sources(set(sys.argv[1:]))
    headers = included_headers()
    jobs = int(os.environ.get("QV_JOBS") or len(os.sched_getaffinity(0)))
    found = []
    with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
        work = [pool.submit(check, name, command, headers.get(name, []))
                for name, command in sorted(sources.items()) for check in (check_tidy, check_cppcheck)]
        for future in work:
            found += future.result().splitlines()
    # A fault in a header is met once for each source that includes it.
    for line in dict.fromkeys(found):
        print(line)
    print(f"lint: {len(sources)} sources, {'problems found' if found else 'clean'}")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
