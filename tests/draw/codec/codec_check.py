#!/usr/bin/env python3
"""Opens images with PIL and compares them with raw RGBA references.

Usage: codec_check.py IMAGE REFERENCE [IMAGE REFERENCE ...]
A reference of "-" checks only that the image opens.  Pixels with alpha 0 in
the reference compare by alpha alone.  Exit status 0 when all match, 1
otherwise, 77 when PIL is missing.
"""
import sys

try:
    from PIL import Image
except ImportError:
    sys.exit(77)


def check(image_path, reference_path):
    with Image.open(image_path) as image:
        image.load()
        rgba = image.convert("RGBA").tobytes()
        size = image.size
    if reference_path == "-":
        return True
    with open(reference_path, "rb") as f:
        reference = f.read()
    if len(reference) != len(rgba):
        print("%s: size %dx%d does not match the reference" % (image_path, size[0], size[1]))
        return False
    for i in range(0, len(rgba), 4):
        want, got = reference[i:i + 4], rgba[i:i + 4]
        if want[3] == 0 and got[3] == 0:
            continue
        if want != got:
            print("%s: pixel %d is %s, expected %s" % (image_path, i // 4, got.hex(), want.hex()))
            return False
    return True


def main(args):
    if len(args) % 2:
        print(__doc__)
        return 2
    ok = all([check(args[i], args[i + 1]) for i in range(0, len(args), 2)])
    return 0 if ok else 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
