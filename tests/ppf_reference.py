"""PPF patches after the table of their format alone, apart from the program's own code: a reader, an applier, writers.

Patches are bytes, images are bytes or bytearrays, records are (offset, new, old); old is None without undo data.
"""
import struct

BLOCK = {0: 0x9320, 1: 0x80A0}  # by image type
BLOCK_BYTES = 1024


def read(patch):
    """A dictionary with version, description, type, block (or None), undo and records."""
    version = {b"PPF10\0": 1, b"PPF20\1": 2, b"PPF30\2": 3}[patch[:6]]
    result = {"version": version, "description": patch[6:56].rstrip(b" \0"), "type": 0, "block": None, "undo": False}
    at = 56
    if version == 2:
        result["size"], at = struct.unpack_from("<I", patch, at)[0], at + 4
        result["block"], at = patch[at:at + BLOCK_BYTES], at + BLOCK_BYTES
    if version == 3:
        result["type"], check, undo, _ = patch[56:60]
        result["undo"], at = bool(undo), 60
        if check:
            result["block"], at = patch[at:at + BLOCK_BYTES], at + BLOCK_BYTES
    end = len(patch)
    if version > 1 and b"@END_FILE_ID.DIZ" in patch[-22:]:
        end = patch.rindex(b"@BEGIN_FILE_ID.DIZ")
    records = result["records"] = []
    while at < end:
        offset = struct.unpack_from("<Q" if version == 3 else "<I", patch, at)[0]
        at += 8 if version == 3 else 4
        count, at = patch[at], at + 1
        new, at = patch[at:at + count], at + count
        old = None
        if result["undo"]:
            old, at = patch[at:at + count], at + count
        assert count and len(new) == count and (old is None or len(old) == count), "a damaged patch"
        records.append((offset, new, old))
    return result


def apply(image, patch):
    """The image with every record's new bytes."""
    image = bytearray(image)
    for offset, new, _ in read(patch)["records"]:
        image[offset:offset + len(new)] = new
    return bytes(image)


def undo(image, patch):
    """The image with every record's old bytes."""
    image = bytearray(image)
    for offset, _, old in reversed(read(patch)["records"]):
        image[offset:offset + len(old)] = old
    return bytes(image)


def runs(before, after, most=255):
    """Records (offset, new, old) of at most `most` bytes, also over sector ends."""
    result, at = [], 0
    while at < len(before):
        if before[at:at + 4096] == after[at:at + 4096]:
            at += 4096
            continue
        if before[at] == after[at]:
            at += 1
            continue
        end = at
        while end < len(before) and end - at < most and before[end] != after[end]:
            end += 1
        result.append((at, after[at:end], before[at:end]))
        at = end
    return result


def write(records, source, version=3, image_type=0, check=True, undo=True, description=b"", trailer=None):
    """A patch as other programs write it. `trailer` is (text, how many bytes its length takes)."""
    head = {1: b"PPF10\0", 2: b"PPF20\1", 3: b"PPF30\2"}[version] + description.ljust(50)
    block = bytes(source[BLOCK[image_type]:BLOCK[image_type] + BLOCK_BYTES])
    if version == 2:
        head += struct.pack("<I", len(source)) + block
    if version == 3:
        head += bytes([image_type, check, undo, 0]) + (block if check else b"")
    body = b""
    for offset, new, old in records:
        body += struct.pack("<Q" if version == 3 else "<I", offset) + bytes([len(new)]) + new
        if version == 3 and undo:
            body += old
    if trailer:
        text, size = trailer
        body += b"@BEGIN_FILE_ID.DIZ" + text + b"@END_FILE_ID.DIZ" + len(text).to_bytes(size, "little")
    return head + body
