# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""What the tests of the command share: running it, comparing, and the end of a test. The command is the first argument
of each of them."""

import os
import pathlib
import subprocess
import sys
import tempfile
import traceback

arguments = [pathlib.Path(argument).resolve() for argument in sys.argv[1:]]
vyr = arguments[0]
failures = []


def run(*words, stdin=b"", **more):
    """The exit code, the output and the messages."""
    done = subprocess.run([vyr, *words], input=stdin, capture_output=True, timeout=300, **more)
    return done.returncode, done.stdout.decode(), done.stderr.decode()


def output(*words):
    """Of a command that has nothing to complain of."""
    code, out, err = run(*words)
    same("code of " + " ".join(map(str, words)), (code, err), (0, ""))
    return out


def same(what, got, expected):
    if got != expected:
        failures.append(f"{what}\n  expected {expected!r}\n  got      {got!r}")


def is_sanitized():
    """Whether the command was built to watch its own memory: then it takes far more than it needs, and can't be
    bounded."""
    return b"__asan_init" in vyr.read_bytes()


def test(praise, *checks):
    """Calls the checks in a folder of their own and ends the program."""
    with tempfile.TemporaryDirectory() as folder:
        os.chmod(folder, 0o755)
        os.chdir(folder)
        for check in checks:
            try:
                check()
            except Exception:  # what one check stumbles over is no reason to skip the others
                failures.append(traceback.format_exc())
        os.chdir("/")
    print("\n".join(failures) or praise)
    sys.exit(bool(failures))
