# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""Times as datetime, and as the texts of the format."""

from __future__ import annotations

from datetime import datetime


def read_time(text: str) -> datetime:
    try:
        return datetime.fromisoformat(text)
    except ValueError:
        raise ValueError(f"the time {text} can't be held by a datetime; it can be had as a text") from None


def write_time(time: object) -> str:
    """The library keeps six digits of the seconds: what is finer is cut off, since rounding could make 60 of it."""
    if not isinstance(time, datetime):
        raise TypeError(f"a time is a datetime or a text, not {type(time)}")
    seconds, kept = time.second * 1_000_000 + time.microsecond, 1
    while seconds // kept >= 1_000_000:
        kept *= 10
    time = time.replace(microsecond=time.microsecond - seconds % kept) if time.microsecond else time
    text = time.isoformat()
    if "." in text:
        head, _, tail = text.partition(".")
        text = f"{head}.{tail[:6].rstrip('0')}{tail[6:]}"
    return text.removesuffix("+00:00") + "Z" if text.endswith("+00:00") else text
