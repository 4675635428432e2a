"""Questions to programs on a bus, in the bytes that go over its socket.

A window is read by hundreds of questions. All of them go out before the first answer is awaited,
and what was asked before isn't put into bytes again.
"""

import functools
import os
import re
import select
import socket
import struct
import time

PATIENCE = 20  # seconds
CALL, ANSWER, FAILURE = 1, 2, 3
LITTLE_ENDIAN, VERSION = b"l", 1
# Fields of a message's head: path, interface, member, and to whom; what the body holds, and which
# question it answers.
PATH, INTERFACE, MEMBER, OWNER, SIGNATURE, ANSWERED = 1, 2, 3, 6, 8, 5
SIGNED = bytes([SIGNATURE, 1]) + b"g\0"
ANSWERS = bytes([ANSWERED, 1]) + b"u\0"
ALIGNED = {"(": 8, "{": 8, "a": 4, "d": 8, "g": 1, "n": 2, "o": 4, "q": 2, "s": 4, "t": 8, "v": 1,
           "x": 8, "y": 1}  # all others 4
PACKED = {"b": "<I", "d": "<d", "i": "<i", "n": "<h", "q": "<H", "t": "<Q", "u": "<I", "x": "<q",
          "y": "<B"}
BUS = "org.freedesktop.DBus"
BUS_PATH = "/org/freedesktop/DBus"


class NoBus(Exception):
    """The bus isn't there, or doesn't answer."""


# Out


def padded(data, size):
    return data + b"\0" * (-len(data) % size)


def put(data, kind, value):
    data = padded(data, ALIGNED.get(kind, 4))
    if kind == "g":
        return data + bytes([len(value)]) + value.encode() + b"\0"
    if kind in "so":
        text = value.encode()
        return data + struct.pack("<I", len(text)) + text + b"\0"
    return data + struct.pack(PACKED[kind], value)


@functools.lru_cache(maxsize=None)
def question(owner, path, interface, member, signature="", *values):
    """What goes in front of a question's number and what behind it."""
    body = b""
    for kind, value in zip(signature, values):
        body = put(body, kind, value)
    fields = b""
    for code, kind, value in [(PATH, "o", path), (INTERFACE, "s", interface), (MEMBER, "s", member),
                              (OWNER, "s", owner), (SIGNATURE, "g", signature)]:
        fields = put(padded(fields, 8) + bytes([code, 1]) + kind.encode() + b"\0", kind, value)
    return (struct.pack("<cBBBI", LITTLE_ENDIAN, CALL, 0, VERSION, len(body)),
            struct.pack("<I", len(fields)) + padded(fields, 8) + body)


# In


@functools.lru_cache(maxsize=None)
def types_of(signature):
    """The whole types that a signature is made of."""
    types, rest = [], signature
    while rest:
        depth, end = 0, 0
        while True:
            depth += (rest[end] in "({") - (rest[end] in ")}")
            end += 1
            if depth == 0 and rest[end - 1] != "a":
                break
        types.append(rest[:end])
        rest = rest[end:]
    return types


def take(data, at, kind):
    """The value of this type, and where it ends. The data begins where types are aligned."""
    at += -at % ALIGNED.get(kind[0], 4)
    if kind in PACKED:
        return struct.unpack_from(PACKED[kind], data, at)[0], at + struct.calcsize(PACKED[kind])
    if kind in "so":
        end = at + 4 + struct.unpack_from("<I", data, at)[0]
        return data[at + 4:end].decode(errors="replace"), end + 1
    if kind in "gv":
        end = at + 1 + data[at]
        text = data[at + 1:end].decode()
        return take(data, end + 1, text) if kind == "v" else (text, end + 1)
    if kind[0] == "a":
        end = struct.unpack_from("<I", data, at)[0]
        at += 4 + -(at + 4) % ALIGNED.get(kind[1], 4)
        end, values = at + end, []
        while at < end:
            value, at = take(data, at, kind[1:])
            values.append(value)
        return values, at
    values = []
    for part in types_of(kind[1:-1]):
        value, at = take(data, at, part)
        values.append(value)
    return tuple(values), at


def answer_in(message, head_ends):
    """The one value that an answer holds, or all in a tuple."""
    at = message.find(SIGNED, 16, head_ends) + len(SIGNED)
    signature = message[at + 1:at + 1 + message[at]].decode()
    body, values, at = message[head_ends:], [], 0
    for kind in types_of(signature):
        value, at = take(body, at, kind)
        values.append(value)
    return values[0] if len(values) == 1 else tuple(values)


class Connection:
    def __init__(self, address):
        """`address` as a bus tells it, of a socket of this machine."""
        kind, place = re.match(r"unix:(path|abstract)=([^,;]+)", address).groups()
        self.socket = socket.socket(socket.AF_UNIX)
        self.socket.connect(place if kind == "path" else "\0" + place)
        self.number, self.data = 0, b""
        self.socket.sendall(b"\0AUTH EXTERNAL " + str(os.getuid()).encode().hex().encode()
                            + b"\r\n")
        if not self.socket.recv(1000).startswith(b"OK "):
            raise NoBus(address)
        self.socket.sendall(b"BEGIN\r\n")
        self.ask(BUS, [(BUS_PATH, BUS, "Hello")])

    def ask(self, owner, questions):
        """Answers to all (path, interface, member, signature, *values), None where there is none."""
        first = self.number + 1
        self.number += len(questions)
        out = bytearray()
        for number, asked in enumerate(questions, first):
            head, tail = question(owner, *asked)
            out += head
            out += number.to_bytes(4, "little")
            out += tail
        answers, end = {}, time.monotonic() + PATIENCE
        while len(answers) < len(questions):
            left = max(0, end - time.monotonic())
            readable, writable, _ = select.select(
                [self.socket], [self.socket] if out else [], [], left)
            if not readable and not writable:
                raise NoBus("no answer")
            if writable:
                del out[:self.socket.send(out)]
            if readable:
                self.data += self.receive()
                answers.update(self.answers_from(first))
        return [answers[number] for number in range(first, first + len(questions))]

    def receive(self):
        data = self.socket.recv(1 << 18)
        if not data:
            raise NoBus("the bus has gone")
        return data

    def answers_from(self, first):
        """The answers that have come whole, by the numbers of their questions."""
        data, at = self.data, 0
        while len(data) - at >= 16:
            body, _, fields = struct.unpack_from("<III", data, at + 4)
            head_ends = 16 + fields + -fields % 8
            if len(data) - at < head_ends + body:
                break
            kind = data[at + 1]
            if kind in (ANSWER, FAILURE):
                message = data[at:at + head_ends + body]
                told = message.index(ANSWERS, 16) + len(ANSWERS)
                number = int.from_bytes(message[told:told + 4], "little")
                if number >= first:
                    yield number, answer_in(message, head_ends) if kind == ANSWER and body else None
            at += head_ends + body
        self.data = data[at:]
