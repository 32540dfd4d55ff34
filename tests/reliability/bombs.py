#!/usr/bin/env python3
"""Gives the command line small files that would fill the memory: bombs.py FOLDER_OF_PROGRAMS

Each is to be refused with one message that names it, within 150 MiB. Ends with 1 where one is not."""
import io
import json
import os
import struct
import sys
import tempfile
import zipfile
import zlib

MOST_MEMORY = 150  # MiB


def chunk(kind, data):
    return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))


def png(width, height, chunks=b""):
    head = struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0)
    rows = zlib.compress(bytes(width * height * 3 + height)) if width < 100 else zlib.compress(bytes(10**6))
    return b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", head) + chunks + chunk(b"IDAT", rows) + chunk(b"IEND", b"")


def bmp(width, height):
    return (b"BM" + struct.pack("<IHHI", 254, 0, 0, 54)
            + struct.pack("<IiiHHIIiiII", 40, width, height, 1, 24, 0, 0, 0, 0, 0, 0) + bytes(200))


def gif(width, height):
    return (b"GIF89a" + struct.pack("<HHBBB", width, height, 0x80, 0, 0) + bytes(6)
            + b"," + struct.pack("<HHHHB", 0, 0, 4, 4, 0) + b"\x02\x04\x84\x8f\x09\x05\x00;")


def jpeg(width, height):
    return (b"\xff\xd8\xff\xc0" + struct.pack(">HBHHB", 11, 8, height, width, 1) + b"\x01\x11\x00"
            + b"\xff\xda\x00\x08\x01\x01\x00\x00\x3f\x00" + bytes(99) + b"\xff\xd9")


def texts(count):
    text = zlib.compress(b" " * 7900000, 9)
    return b"".join(chunk(b"zTXt", b"k%d\0\0" % number + text) for number in range(count))


def pack(sizes):
    contents = io.BytesIO()
    with zipfile.ZipFile(contents, "w", zipfile.ZIP_DEFLATED, compresslevel=9) as archive:
        for number, size in enumerate(sizes):
            with archive.open(f"f{number}", "w") as file:
                for _ in range(size):
                    file.write(bytes(1 << 20))
        archive.writestr("pack.json", json.dumps({
            "format": "testshow-pack", "version": 1, "show": "f0",
            "files": [{"path": f"f{number}", "bytes": size << 20} for number, size in enumerate(sizes)]}))
    return contents.getvalue()


def logo(path):
    return json.dumps({"format": "testchart", "version": 1, "logoData": {
        "showLogo": True, "pictureLogo": True, "picturePath": path}}).encode()


# The file's name, its bytes, and what is done with it.
VERIFY = ["verify", "FILE", "ok.json"]
RENDER = ["render", "FILE", "-o", "out.png"]
BOMBS = [
    ("texts.png", lambda: png(4, 4, texts(100)), VERIFY),
    ("texts.record.png", lambda: png(4, 4, texts(100)), RENDER),
    ("huge.png", lambda: png(60000, 60000), VERIFY),
    ("huge.jpg", lambda: jpeg(65000, 65000), VERIFY),
    ("huge.bmp", lambda: bmp(12000, 12000), VERIFY),
    ("top.bmp", lambda: bmp(12000, -12000), VERIFY),
    ("screen.gif", lambda: gif(20000, 20000), VERIFY),
    ("logo-texts.json", lambda: logo("texts.png"), RENDER),
    ("logo-huge.json", lambda: logo("huge.png"), RENDER),
    ("logo-jpeg.json", lambda: logo("huge.jpg"), RENDER),
    ("logo-top.json", lambda: logo("top.bmp"), RENDER),
    ("logo-screen.json", lambda: logo("screen.gif"), RENDER),
    ("deep.json", lambda: b"[" * 500000, RENDER),
    ("deep-objects.json", lambda: b'{"a":' * 180000, RENDER),
    ("large.json", lambda: b" " * 100000000, RENDER),
    ("one.zip", lambda: pack([300]), ["show", "unpack", "FILE", "-o", "out"]),
    ("many.zip", lambda: pack([63] * 5), ["show", "unpack", "FILE", "-o", "out"]),
    ("wide.csv", lambda: b"name" + b",x" * 8000000, ["batch", "ok.json", "-w", "FILE", "-o", "out"]),
    ("long.csv", lambda: b"name\n" + b"a\n" * 8000000, ["batch", "ok.json", "-w", "FILE", "-o", "out"]),
]


def in_a_process(work):
    """What a process takes while it makes a bomb would count for those that it starts."""
    child = os.fork()
    if child == 0:
        try:
            work()
        except BaseException:
            os._exit(1)
        os._exit(0)
    if os.waitpid(child, 0)[1] != 0:
        sys.exit("a bomb could not be made")


def write(name, contents):
    with open(name, "wb") as file:
        file.write(contents())


def run(program, arguments):
    """The exit code, the standard error, MiB at the most, and seconds of processor time."""
    errors = os.open("errors.txt", os.O_RDWR | os.O_CREAT | os.O_TRUNC)
    child = os.posix_spawn(program, [program, *arguments], os.environ, file_actions=[
        (os.POSIX_SPAWN_DUP2, errors, 2), (os.POSIX_SPAWN_DUP2, errors, 1)])
    os.close(errors)
    _, status, usage = os.wait4(child, 0)
    with open("errors.txt", encoding="utf-8", errors="replace") as file:
        told = file.read()
    return os.waitstatus_to_exitcode(status), told, usage.ru_maxrss // 1024, usage.ru_utime + usage.ru_stime


def main():
    program = os.path.join(os.path.abspath(sys.argv[1]), "vdchart")
    failures = 0
    with tempfile.TemporaryDirectory() as folder:
        os.chdir(folder)
        write("ok.json", lambda: b'{"format": "testchart", "version": 1}')
        for name, contents, arguments in BOMBS:
            in_a_process(lambda: write(name, contents))
            code, told, memory, seconds = run(program, [name if word == "FILE" else word for word in arguments])
            good = code == 3 and told.startswith("vdchart: ") and memory <= MOST_MEMORY
            good = good and not os.path.exists("out") and not os.path.exists("out.png")
            failures += not good
            print(f"{'ok   ' if good else 'WRONG'} {name}: {memory} MiB, {seconds:.2f} s, {told.strip()[:150]}")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
