#!/usr/bin/env python3
# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""The command line as a user meets it: output, exit code, and what stands in files afterwards.

Usage: check_vyr.py VYR PALETTE      (the command, and a valid document in the library's own layout)
"""

import ctypes
import json
import os
import pathlib
import pty
import re
import select
import shutil
import signal
import subprocess
import time

from command import arguments, failures, run, same, test, vyr

palette = arguments[1]


def expect(code, out, err, *arguments, **more):
    """`out` and `err` are patterns for all of either stream."""
    got = run(*arguments, **more)
    if got[0] != code or not re.fullmatch(out, got[1], re.S) or not re.fullmatch(err, got[2], re.S):
        failures.append(f"vyr {arguments}\n  expected {code}: {out!r} and {err!r}\n  got {got[0]}: {got[1]!r} and {got[2]!r}")


def obey_permissions():
    """Not even the superuser's tests may read everything. Another user could not enter the superuser's home, where the
    command may stand: the user stays, and what opens all doors goes. Only where that is forbidden the user changes."""
    if os.getuid() != 0:
        return
    drop_from_bounding_set, powers = 24, (1, 2)  # PR_CAPBSET_DROP, CAP_DAC_OVERRIDE and CAP_DAC_READ_SEARCH
    prctl = ctypes.CDLL(None).prctl
    if any(prctl(drop_from_bounding_set, power, 0, 0, 0) for power in powers):
        os.setuid(65534)


def on_terminal(*arguments, **environment):
    """What a terminal gets, and the exit code."""
    master, slave = pty.openpty()
    child = subprocess.Popen([vyr, *arguments], stdin=slave, stdout=slave, stderr=slave,
                             env={**os.environ, "TERM": "xterm", "NO_COLOR": "", **environment})
    return drained(master, slave, child), child.wait(120)


def drained(master, slave, child):
    """What comes until the child has ended. The other end stays open, or what is on its way could be lost."""
    text, end = b"", time.monotonic() + 120
    while time.monotonic() < end:
        if select.select([master], [], [], 0.3)[0]:
            text += os.read(master, 65536)
        elif child.poll() is not None:
            break
    os.close(slave)
    os.close(master)
    return text.decode(errors="replace")


def settled(answer):
    """What stands on a terminal once the progress has gone, which a busy machine may need to tell of."""
    return re.sub(r"\r[^\r\n]*\x1b\[K", "", answer[0]), answer[1]


def make_documents():
    text = palette.read_text()
    broken = re.sub(r"<Vyr:Red>[^<]*", "<Vyr:Red>1.5", text, count=1)
    broken = re.sub(r"<Vyr:Green>[^<]*", "<Vyr:Green>x", broken, count=3)
    colors = re.findall(r"\t*<Vyr:Color .*?</Vyr:Color>\n", text, re.S)
    other = text.replace(colors[6], "").replace(colors[7], "").replace("</Vyr:ColorSet>", colors[7] + "</Vyr:ColorSet>")
    other = other.replace(">0.94117647058824<", ">0.5<", 1).replace('Name="beige"', 'Name="sand"')
    other = other.replace('<Vyr:Color ColorName="azure"', '<Vyr:Color UniqueID="7" ColorName="azure"')
    other = other.replace(colors[20], colors[20]
                          + colors[9].replace('Name="blue"', 'Name="new"').replace(">1<", ">.9<"))
    other = other.replace("<Vyr:Palette ", '<Vyr:Palette Comments="new" ')
    for name, content in {
        "good.vyr": text,
        "broken.vyr": broken,
        "other.vyr": other,
        "layout.vyr": text.replace("\t", " ").replace("<Vyr:Blue>1<", "<Vyr:Blue> 1.00 <"),
        "hostile.vyr": text.replace("aliceblue", "\u202e\u009b31m&#9;&lt;b>", 1)
                           .replace("antiquewhite", "\u180e\u200d\u3164\U000e0041e\u0301", 1),
        "zones.vyr": re.sub(r"Z</Vyr:ChangeHistory>", "+99:99</Vyr:ChangeHistory>", text, count=2),
        "month.vyr": text.replace("-05-", "-13-", 1),
        "empty.vyr": "",
    }.items():
        pathlib.Path(name).write_text(content)
    pathlib.Path("junk.vyrz").write_bytes(bytes(range(256)) * 9)
    os.mkdir("none")


def check_check():
    text = palette.read_text()
    line = text[: text.index("<Vyr:Red>")].count("\n") + 1
    place = f'broken.vyr:{line}:6: Palette "CSS" / ColorSet "Named" / Color "aliceblue" / ColorSpaceSRGB / Red: '
    faults = re.escape(place) + "Value greater than specified maximum.*1\\.5.*\n(broken[^\n]*x[^\n]*\n){3}"
    expect(1, faults, "", "check", "good.vyr", "broken.vyr", "-j", "4", "good.vyr")
    expect(1, r"\x1b\[31mbroken.*", "", "check", "--color=always", "broken.vyr")
    expect(1, "[^\n]*1\\.5[^\n]*\nbroken.vyr: 3 more; [^\n]*\n", "", "check", "--limit=1", "broken.vyr")
    expect(1, "empty.vyr:1:1: [^\n]*\njunk.vyrz: [^\n]*not a ZIP archive\n", "", "check", "empty.vyr", "junk.vyrz")
    expect(2, "broken.*", "vyr: absent: No such file or directory\nvyr: none: has no file that ends in .*",
           "check", "broken.vyr", "absent", "none", "good.vyr")
    expect(1, "standard input:1:1: .*", "", "check", "-")

    os.makedirs("tree/deep/b.vyr")
    os.symlink("..", "tree/deep/circle")
    os.mkfifo("tree/pipe.vyr")
    shutil.copy("broken.vyr", "tree/deep/b.vyr/z.vyr")
    for name in (b"a.vyr", b"caf\xe9.vyr", b"\xe9.vyrz", "größe.vyrz".encode(), b"\x1b[31m\n.vyr", b"--json"):
        target = b"tree/" + name
        expect(0, "", "", "convert", "--to", "vyrz" if name.endswith(b"z") else "vyr", "--", "good.vyr", target)
    expect(1, "tree/deep/b.vyr/z.vyr:.*", "", "check", "-j0", "tree")
    expect(2, "", r"vyr: x\\xE9\\u\{1B\}\[31m: No such .*", "check", b"x\xe9\x1b[31m")
    code, out, _ = run("check", "--json", "-j3", b"x\xe9\x1b", "tree", "broken.vyr", "empty.vyr")
    answer = json.loads(out)
    faults = answer["files"][-2]["faults"]
    same("check --json", (code, answer["valid"], answer["invalid"], answer["unreadable"], answer["files"][0]["status"],
                          [fault["value"] for fault in faults], faults[0]["line"]),
         (2, 5, 3, 1, "unreadable", ["1.5", "x", "x", "x"], line))
    # What can't be read is no document that fails, wherever the disk gives out.
    expect(2, "", "vyr: /proc/self/mem: Input/output error\n", "check", "/proc/self/mem")
    os.chmod("tree/a.vyr", 0)
    expect(2, "", "vyr: tree/a.vyr: Permission denied\n", "check", "tree/a.vyr", preexec_fn=obey_permissions)
    os.remove("tree/pipe.vyr")


def check_convert():
    good = palette.read_bytes()

    def holds(name, content):
        same(f"content of {name}", pathlib.Path(name).read_bytes() == content, True)

    os.umask(0o027)
    pathlib.Path("a.vyr").write_text("in the way")
    expect(0, "", "", "convert", "good.vyr", "a.vyrz")
    holds("a.vyr", b"in the way")
    expect(0, "", "", "convert", "a.vyrz", "b.vyr")
    holds("b.vyr", good)
    os.chmod("b.vyr", 0o604)
    os.symlink("b.vyr", "link.vyr")
    os.symlink("c.vyr", "dangling.vyr")
    for target in ("link.vyr", "b.vyr", "dangling.vyr"):
        expect(0, "", "", "convert", "layout.vyr" if target == "link.vyr" else "b.vyr", target)
    holds("b.vyr", good)
    holds("c.vyr", good)
    same("permissions", [oct(os.stat(name).st_mode & 0o777) for name in ("b.vyr", "c.vyr", "a.vyrz")],
         ["0o604", "0o640", "0o640"])
    same("a link", os.path.islink("link.vyr"), True)
    packed = subprocess.run([vyr, "convert", "--to=vyrz", "-", "-"], input=good, capture_output=True).stdout
    plain = subprocess.run([vyr, "convert", "-", "-"], input=packed, capture_output=True).stdout
    same("convert between pipes", (packed[:2], plain == good), (b"PK", True))
    for arguments, code, text in (
        (("good.vyr", "no/such/folder.vyr"), 2, "vyr: no/such/folder.vyr: No such file or directory"),
        (("good.vyr", "none"), 2, "vyr: none: the name .*"),
        (("--to", "vyr", "good.vyr", "none"), 2, "vyr: none: is a directory"),
        (("good.vyr", "--to=vyr", "/dev/full"), 2, "vyr: /dev/full: No space left on device"),
        (("absent.vyr", "b.vyr"), 2, "vyr: absent.vyr: No such .*"),
        (("broken.vyr", "b.vyr"), 1, "broken.vyr:.*"),
    ):
        expect(code, "", text + "\n", "convert", *arguments)
    # It reads, but what it would be written as doesn't.
    place = "vyr: b.vyr(z?): [^\n]*ChangeHistory[^\n]*: Invalid value format[^\n]*\\+100:39\\): [^\n]*\n"
    expect(1, "", f"({place}){{2}}", "convert", "zones.vyr", "b.vyr")
    expect(1, "", f"({place}){{2}}", "convert", "zones.vyr", "b.vyrz")
    holds("b.vyr", good)
    # A document that would come back as another one is not written, whether the library says so or the comparison.
    for before, after, lost in (
        (b"<Vyr:Purpose>", b"<Vyr:Purpose>&#13;",
         r"vyr: {}: Preamble / Header / Purpose: Invalid value .*: only the line feed is read back as a line end\n"),
        (b"2024-05-01T09:30:00Z", b"2024-05-01T09:30:00.000000001Z",
         r"~ Preamble / Header / ChangeHistory: \"[^\"]*00\.0+Z\" -> \"[^\"]*00Z\"\n"
         r"vyr: {}: not written, as it would load with the differences above\n"),
    ):
        pathlib.Path("lossy.vyr").write_bytes(good.replace(before, after, 1))
        for target, form in (("b.vyr", "vyr"), ("a.vyrz", "vyrz"), ("-", "vyr"), ("-", "vyrz"), ("never.vyr", "vyrz")):
            name = "standard output" if target == "-" else re.escape(target)
            expect(1, "", lost.format(name), "convert", "--to", form, "lossy.vyr", target)
        holds("b.vyr", good)
    same("left behind", [name for name in os.listdir(".") if name.startswith((".vyr-", "never.vyr", "b.vyrz"))], [])


def check_list():
    expect(0, "Palette \"CSS\" / ColorSet \"Named\"\n +SRGB\\[1\\] Red +Green +Blue\n  navy +0 +0 +0\\.501961\n"
              "  \\[1\\] [^\n]*\n", "", "list", "--name=navy", "--set", "N*", "--palette", "?SS", "good.vyr")
    expect(0, "", ".*no such colour\n", "list", "--name=nav", "good.vyr")
    # A name can't steer the terminal, in either form.
    expect(0, r".*\\u\{202E\}\\u\{9B\}31m\\u\{9\}<b>.*\\u\{180E\}\\u\{200D\}\\u\{3164\}\\u\{E0041\}e\u0301.*", "",
           "list", "hostile.vyr")
    _, out, _ = run("list", "--json", "hostile.vyr")
    same("list --json", ("\u202e" in out, json.loads(out)[0]["name"]), (False, "\u202e\u009b31m\t<b>"))
    expect(1, "", "broken.vyr:.*", "list", "broken.vyr")
    expect(2, "", "vyr: absent: .*", "info", "absent")


def check_diff():
    here = 'Palette "CSS" / ColorSet "Named" / Color '
    lines = ['+ Palette "CSS" / @Comments: "new"',
             f'~ {here}"aliceblue" / ColorSpaceSRGB / Red: "0.94117647058824" -> "0.5"',
             f'+ {here}"azure" / @UniqueID: "7"',
             f'~ {here}"beige" / @ColorName: "beige" -> "sand"',
             f'- {here}"bisque" (15 elements in it)',
             f'+ {here}"new" (15 elements in it)',
             f'> {here}"black": from place 8 to 148']
    expect(1, re.escape("\n".join(lines) + "\n"), "", "diff", "good.vyr", "other.vyr")
    answer = json.loads(run("diff", "--json", "good.vyr", "other.vyr")[1])
    same("diff --json", ([row["change"] for row in answer], answer[1]["after"]),
         (["added", "changed", "added", "changed", "removed", "added", "moved"], "0.5"))
    expect(0, "", "", "diff", "good.vyr", "layout.vyr")
    expect(0, r"\[\n\]\n", "", "diff", "--json", "-", "good.vyr", stdin=palette.read_bytes())
    expect(1, "", "", "diff", "-q", "good.vyr", "other.vyr")
    expect(2, "", "broken.vyr:.*", "diff", "good.vyr", "broken.vyr")


def check_usage():
    expect(0, ".*check.*Exit codes:.*", "", "--help")
    expect(0, r"vyr \d+\.\d+\.\d+\n", "", "--version")
    expect(2, "", ".*Usage: vyr .*")
    expect(2, "", "vyr: there is no command \"delete\"; .*", "delete", "good.vyr")
    expect(2, "", "vyr convert: OUT is required; .*", "convert", "one")
    expect(2, "", "vyr diff: .*three.*", "diff", "one", "two", "three")
    expect(2, "", "vyr list: .*--color.*", "list", "--color=blue", "good.vyr")
    expect(0, " +36  ELMX_VALUE_EXCEEDS_MAX +Value greater than .*", "", "codes", "36")
    expect(2, "", ".*no result code \"99\".*", "codes", "36", "99")


def check_streams():
    """Whoever stops reading is no fault, a full disk is one."""
    reader, closed = os.pipe()
    os.close(reader)
    for words in (("list", "good.vyr"), ("convert", "good.vyr", "-")):
        for restore in (True, False):
            done = subprocess.run([vyr, *words], stdout=closed, stderr=subprocess.PIPE, restore_signals=restore)
            same(f"{words} into a closed pipe", (done.stderr, done.returncode in (0, -signal.SIGPIPE)), (b"", True))
        with open("/dev/full", "wb") as full:
            done = subprocess.run([vyr, *words], stdout=full, stderr=subprocess.PIPE)
            same(f"{words} onto a full disk", (done.returncode, b"No space left" in done.stderr), (2, True))


def has_terminals():
    """A container may come without them."""
    try:
        for end in pty.openpty():
            os.close(end)
        return True
    except OSError:
        print("no terminal can be had here: what the command does on one is not tested")
        return False


def check_terminal():
    navy = "\x1b[48;2;0;0;128m  \x1b[0m navy"
    for announced, swatches in (("truecolor", 1), ("", 0)):
        text, code = settled(on_terminal("list", "--name=navy", "good.vyr", COLORTERM=announced))
        same(f"list on a terminal ({announced})", (code, text.count(navy), "\x1b" in text), (0, swatches, swatches > 0))
    places = [rf"\x1b\[3{color}m{name}.vyr:\d+:\d+\x1b\[0m: .*: " for color, name in ((1, "broken"), (3, "month"))]
    for words, environment, has_color in (
        (["--color=never"], {}, False), ([], {"NO_COLOR": "1"}, False), ([], {}, True),
    ):
        for command, patterns in ((["diff", "good.vyr", "other.vyr"], [r"\x1b\[32m\+ "]),
                                  (["check", "broken.vyr", "month.vyr"], places)):
            text, code = settled(on_terminal(*command, *words, **environment))
            found = {"\x1b" in text, *(re.search(pattern, text) is not None for pattern in patterns)}
            same(f"{command} {words} {environment}", (code, found), (1, {has_color}))
    same("check on a terminal", settled(on_terminal("check", "good.vyr", "good.vyr")), ("2 valid documents\r\n", 0))
    same("a container on a terminal", settled(on_terminal("convert", "--to=vyrz", "good.vyr", "-")),
         ("vyr: standard output: a container is no text for a terminal\r\n", 2))
    os.mkfifo("slow.vyr")
    for words, told, end in ((["check", "good.vyr"], "2 of 2: checking slow.vyr\x1b[K", "2 valid documents\r\n"),
                             (["list", "--name=red"], "reading slow.vyr, 1 s\x1b[K", "not polarized\r\n")):
        feeder = subprocess.Popen(["sh", "-c", "sleep 1.6; cat good.vyr > slow.vyr"])
        text, code = on_terminal(*words, "slow.vyr")
        feeder.wait()
        same(f"{words} of a slow pipe on a terminal {text!r}", (code, "\r" + told in text, "\r\x1b[K" in text,
                                                                text.endswith(end)), (0, True, True, True))


def check_progress():
    """A line while results go into a file, and nothing of it left."""
    pathlib.Path("long.vyr").write_text(re.sub("(<Vyr:ColorSet .*</Vyr:ColorSet>\n)", lambda found: found[1] * 120,
                                               palette.read_text(), flags=re.S))
    text = ""
    for _ in range(5):  # until it has been caught at work
        master, slave = pty.openpty()
        with open("results", "wb") as results:
            child = subprocess.Popen([vyr, "json", "long.vyr"], stdout=results, stderr=slave)
        while child.poll() is None and os.path.getsize("results") == 0:
            time.sleep(0.002)
        child.send_signal(signal.SIGSTOP)
        time.sleep(1.2)
        child.send_signal(signal.SIGCONT)
        child.wait(120)
        text = drained(master, slave, child)
        if "printing" in text:
            break
    if "\rprinting long.vyr, 1 s" not in text or not text.endswith("\r\x1b[K"):
        failures.append(f"a terminal is told: {text!r}")


test("the command behaves", make_documents, check_usage, check_check, check_convert, check_list, check_diff,
     check_streams, *([check_terminal, check_progress] if has_terminals() else []))
