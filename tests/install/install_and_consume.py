#!/usr/bin/env python3
"""Installs the build tree into a temporary prefix and builds the example
programs against that prefix alone, with CMake and with pkg-config; runs them
and reads their pictures with PIL.

Usage: install_and_consume.py BUILD_DIR SOURCE_DIR [--sanitized]
"""
import collections
import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

from PIL import Image

BUILD, SOURCE = os.path.abspath(sys.argv[1]), os.path.abspath(sys.argv[2])
SANITIZED = "--sanitized" in sys.argv[3:]
# Folders that are not the engine: the plug-in layer and everything around it.
NOT_ENGINE = {"host", "tests", "bench", "fuzz", "examples", "scripts", "cmake", "out"}
RUNTIME_LIBRARIES = {"libz.so.1", "libpng16.so.16", "libjpeg.so.62", "libfreetype.so.6",
                     "libstdc++.so.6", "libm.so.6", "libgcc_s.so.1", "libc.so.6",
                     "ld-linux-x86-64.so.2"}
SANITIZER_LIBRARIES = {"libasan.so.8", "libubsan.so.1"}

INK, BLUE, RED, GREEN = (0x1F, 0x3A, 0x5F), (0x4A, 0x90, 0xD9), (0xE4, 0x57, 0x2E), (0x76, 0xB0, 0x41)
WHITE, PAPER = (0xFF, 0xFF, 0xFF), (0xF4, 0xF6, 0xFA)


def run(args, cwd=None, env=None):
    result = subprocess.run(args, cwd=cwd, env=env, stdout=subprocess.PIPE,
                            stderr=subprocess.STDOUT, text=True)
    if result.returncode != 0:
        raise AssertionError("%s failed (%d):\n%s" % (" ".join(args), result.returncode,
                                                     result.stdout))
    return result.stdout


def project_version():
    with open(os.path.join(BUILD, "CMakeCache.txt")) as cache:
        for line in cache:
            if line.startswith("CMAKE_PROJECT_VERSION:"):
                return line.strip().split("=", 1)[1]
    raise AssertionError("no project version in the build tree")


def ink_pixels(image, box):
    """Pixels in box that are dark: text, edges and lines in the ink colour."""
    region = image.crop(box)
    return sum(1 for p in region.getdata() if sum(p[:3]) < 300)


class InstallAndConsume(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.tmp = tempfile.mkdtemp(prefix="vistrel-install-")
        cls.prefix = os.path.join(cls.tmp, "prefix")
        run(["cmake", "--install", BUILD, "--prefix", cls.prefix])
        cls.include = os.path.join(cls.prefix, "include", "vistrel")
        cls.lib = os.path.join(cls.prefix, "lib")
        # Consumers see the prefix and nothing of the source or build trees.
        cls.env = {k: v for k, v in os.environ.items()
                   if k not in ("CMAKE_PREFIX_PATH", "PKG_CONFIG_PATH", "FONTPATH",
                                "LD_LIBRARY_PATH", "CPATH", "LIBRARY_PATH")}
        cls.env["PKG_CONFIG_PATH"] = os.path.join(cls.lib, "pkgconfig")
        cls.outputs = {}

    @classmethod
    def tearDownClass(cls):
        shutil.rmtree(cls.tmp, ignore_errors=True)

    def pkg_config(self, *args):
        """Words of pkg-config's answer, paths made plain (the files find
        their prefix as ${pcfiledir}/../..)."""
        words = run(["pkg-config"] + list(args), env=self.env).split()
        return [re.sub(r"^(-[IL])?(/.*)$", lambda m: (m.group(1) or "") + os.path.normpath(m.group(2)),
                       w) for w in words]

    def test_installed_files(self):
        for path in ["include/vistrel/vistrel.h", "include/vistrel/vistrel.hpp",
                     "include/vistrel/api/CDrawArea.h", "include/vistrel/draw/canvas/DrawArea.h",
                     "lib/libvistrel.a", "lib/libvistrel.so", "lib/fonts/LiberationSans-Regular.ttf",
                     "lib/fonts/LiberationSerif-Bold.ttf", "lib/cmake/Vistrel/VistrelConfig.cmake",
                     "lib/cmake/Vistrel/VistrelConfigVersion.cmake",
                     "lib/pkgconfig/vistrel.pc", "lib/pkgconfig/vistrel-static.pc"]:
            self.assertTrue(os.path.exists(os.path.join(self.prefix, path)), path)
        self.assertFalse(os.path.exists(os.path.join(self.include, "host")))
        version = project_version()
        self.assertEqual([version], self.pkg_config("--modversion", "vistrel"))
        self.assertEqual(["-I" + self.include], self.pkg_config("--cflags", "vistrel"))
        self.assertEqual([os.path.join(self.lib, "fonts")],
                         self.pkg_config("--variable=fontdir", "vistrel"))
        soname = run(["readelf", "-d", os.path.join(self.lib, "libvistrel.so")])
        major_minor = ".".join(version.split(".")[:2])
        self.assertIn("Library soname: [libvistrel.so.%s]" % major_minor, soname)

    def test_shared_library_exports_the_declared_c_functions_alone(self):
        preprocessed = run(["cc", "-E", "-I" + self.include,
                            os.path.join(self.include, "vistrel.h")])
        declared = set(re.findall(r"\b(C[A-Z][A-Za-z0-9]*_[A-Za-z0-9_]+)\s*\(", preprocessed))
        self.assertGreater(len(declared), 300)
        library = os.path.join(self.lib, "libvistrel.so")
        exported = set(line.split()[-1] for line in
                       run(["nm", "-D", "--defined-only", library]).splitlines())
        self.assertEqual(set(), declared - exported, "declared but not in libvistrel.so")
        self.assertEqual(set(), exported - declared, "exported but not declared")
        needed = set(re.findall(r"Shared library: \[([^\]]+)\]", run(["readelf", "-d", library])))
        allowed = RUNTIME_LIBRARIES | (SANITIZER_LIBRARIES if SANITIZED else set())
        self.assertEqual(set(), needed - allowed)

    def test_static_library_holds_every_engine_source(self):
        expected = collections.Counter()
        for folder in sorted(os.listdir(SOURCE)):
            path = os.path.join(SOURCE, folder)
            if folder in NOT_ENGINE or folder.startswith((".", "build")) or not os.path.isdir(path):
                continue
            for root, _, files in os.walk(path):
                expected.update(f + ".o" for f in files if f.endswith(".cpp"))
        self.assertIn("DrawArea.cpp.o", expected)
        members = collections.Counter(
            run(["ar", "t", os.path.join(self.lib, "libvistrel.a")]).split())
        self.assertEqual({}, dict(expected - members), "engine sources missing")
        self.assertEqual({}, dict(members - expected), "objects that are not the engine")

    def test_public_headers_compile_as_c99_and_cpp17(self):
        source = os.path.join(self.tmp, "headers")
        os.makedirs(source, exist_ok=True)
        with open(os.path.join(source, "c.c"), "w") as f:
            f.write("#include <vistrel.h>\nint main(void) { return CChart_xySize(1, 2) == 0; }\n")
        with open(os.path.join(source, "cpp.cpp"), "w") as f:
            f.write("#include <vistrel.h>\n#include <vistrel.hpp>\n"
                    "int main() { return MultiChart::create(1, 1, 0, 0, 0) ? kCenter : 0; }\n")
        flags = ["-pedantic", "-Wall", "-Wextra", "-Werror", "-fsyntax-only", "-I" + self.include]
        run(["cc", "-std=c99"] + flags + [os.path.join(source, "c.c")])
        run(["c++", "-std=c++17", "-x", "c++"] + flags + [os.path.join(source, "c.c")])
        run(["c++", "-std=c++17"] + flags + [os.path.join(source, "cpp.cpp")])

    def example(self, language):
        """Copies an example out of the source tree, to be built where it lies."""
        source = os.path.join(self.tmp, "src-" + language)
        if not os.path.isdir(source):
            shutil.copytree(os.path.join(SOURCE, "examples", language), source)
        return source

    def build_with_cmake(self, language):
        source, build = self.example(language), os.path.join(self.tmp, "cmake-" + language)
        run(["cmake", "-S", source, "-B", build, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Release",
             "-DCMAKE_PREFIX_PATH=" + self.prefix], env=self.env)
        run(["cmake", "--build", build], env=self.env)
        commands = run(["ninja", "-C", build, "-t", "commands"], env=self.env)
        for tree in (SOURCE, BUILD):
            self.assertNotIn(tree + "/", commands.replace(self.tmp, ""))
        return os.path.join(build, "vistrel_%s_example" % language)

    def run_example(self, program, name):
        out = os.path.join(self.tmp, "out-" + name)
        os.makedirs(out)
        # The working folder is empty: fonts come from the installed package.
        run([program, out], cwd=out, env=self.env)
        return out

    def test_examples_built_with_cmake_draw_the_same_pictures(self):
        c_out = self.run_example(self.build_with_cmake("c"), "c-cmake")
        cpp_out = self.run_example(self.build_with_cmake("cpp"), "cpp-cmake")
        self.check_canvas(os.path.join(c_out, "canvas.png"))
        self.check_chart(os.path.join(c_out, "chart.png"))
        for name in ("canvas.png", "chart.png"):
            with open(os.path.join(c_out, name), "rb") as a, open(os.path.join(cpp_out, name), "rb") as b:
                self.assertEqual(a.read(), b.read(), name + ": the C and C++ programs differ")

    def test_examples_built_with_pkg_config_in_one_line(self):
        c_dir, cpp_dir = self.example("c"), self.example("cpp")
        c_program = os.path.join(self.tmp, "pkg-c", "vistrel_c_example")
        cpp_program = os.path.join(self.tmp, "pkg-cpp", "vistrel_cpp_example")
        os.makedirs(os.path.dirname(c_program))
        os.makedirs(os.path.dirname(cpp_program))
        libdir = self.pkg_config("--variable=libdir", "vistrel")[0]
        run(["cc", os.path.join(c_dir, "canvas_and_chart.c"), "-o", c_program]
            + self.pkg_config("--cflags", "--libs", "vistrel") + ["-Wl,-rpath," + libdir],
            env=self.env)
        run(["c++", "-std=c++17", os.path.join(cpp_dir, "canvas_and_chart.cpp"), "-o", cpp_program]
            + self.pkg_config("--cflags", "--libs", "vistrel-static"), env=self.env)
        shutil.copytree(self.pkg_config("--variable=fontdir", "vistrel-static")[0],
                        os.path.join(os.path.dirname(cpp_program), "fonts"))
        c_out = self.run_example(c_program, "c-pkg")
        cpp_out = self.run_example(cpp_program, "cpp-pkg")
        for out in (c_out, cpp_out):
            self.check_canvas(os.path.join(out, "canvas.png"))
            self.check_chart(os.path.join(out, "chart.png"))

    def check_canvas(self, path):
        image = Image.open(path)
        self.assertEqual(("PNG", (400, 260)), (image.format, image.size))
        rgb = image.convert("RGB")
        self.assertEqual(WHITE, rgb.getpixel((5, 5)))
        self.assertEqual(BLUE, rgb.getpixel((85, 120)))
        self.assertEqual(RED, rgb.getpixel((190, 120)))
        self.assertEqual(GREEN, rgb.getpixel((300, 150)))
        self.assertEqual(INK, rgb.getpixel((200, 210)))
        # The title: text found its font.
        self.assertGreater(ink_pixels(rgb, (100, 18, 300, 44)), 100)
        self.assertEqual(0, ink_pixels(rgb, (0, 0, 400, 15)))

    def check_chart(self, path):
        image = Image.open(path)
        self.assertEqual(("PNG", (480, 300)), (image.format, image.size))
        rgb = image.convert("RGB")
        self.assertEqual(PAPER, rgb.getpixel((20, 280)))
        self.assertEqual(INK, rgb.getpixel((0, 150)))
        # Bars on a 0 to 180 scale over the plot's 220 pixels, white plot above.
        for x, color, value in ((97, BLUE, 120), (190, RED, 75), (283, GREEN, 160)):
            top = round(260 - value * 220 / 180)
            self.assertEqual(color, rgb.getpixel((x, 255)))
            self.assertEqual(color, rgb.getpixel((x, top + 3)))
            self.assertEqual(WHITE, rgb.getpixel((x + 25, top - 3)))
            # Its value above it.
            self.assertGreater(ink_pixels(rgb, (x - 20, top - 22, x + 20, top - 3)), 10)
        self.assertGreater(ink_pixels(rgb, (140, 2, 340, 30)), 100)
        legend = set(rgb.crop((350, 60, 480, 140)).getdata())
        self.assertTrue({BLUE, RED, GREEN} <= legend)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=1)
