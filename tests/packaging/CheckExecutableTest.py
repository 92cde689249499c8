"""The check of what was linked for macOS, on small programs with one fault each. They are made by the
check's own compiler and linker, of no headers, with libraries of two names.

  CheckExecutableTest.py
"""
import os
import struct
import subprocess
import tempfile
import unittest

CHECK = os.path.realpath(os.path.join(os.path.dirname(__file__),
                                      "../../cmake/macos-check/checkExecutable"))
SYSTEM = "/usr/lib/libSystem.B.dylib"
SOME = "/System/Library/Frameworks/Some.framework/Versions/A/Some"
RPATH = "@executable_path/../Frameworks"
ARCHITECTURES = ("x86_64", "arm64")
SOURCE = """
int take(void);
#ifdef ANOTHER
int another(void);
#else
#define another() 0
#endif
int main(void) { return take() + another(); }
"""
LIBRARY = """--- !tapi-tbd
tbd-version: 4
targets: [ x86_64-macos, arm64-macos, x86_64-maccatalyst, arm64-maccatalyst ]
install-name: '%s'
exports:
  - targets: [ x86_64-macos, arm64-macos, x86_64-maccatalyst, arm64-maccatalyst ]
    symbols: [ %s ]
...
"""


class Programs(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name
        self.write("main.c", SOURCE)
        self.write("System.tbd", LIBRARY % (SYSTEM, "dyld_stub_binder, _other"))
        self.write("Some.tbd", LIBRARY % (SOME, "_take, _another"))

    def path(self, name):
        return os.path.join(self.folder, name)

    def write(self, name, text):
        with open(self.path(name), "w", encoding="utf-8") as file:
            file.write(text)

    def expect(self, *, minimum="12.0", libraries=((SYSTEM,), (SOME, "_take"))):
        lines = [f"minimum {minimum} # the rest is a remark", f"rpath {RPATH}", ""]
        for library, *names in libraries:
            lines += [library] + ["    " + name for name in names]
        self.write("expected", "".join(line + "\n" for line in lines))

    def run_tool(self, *words):
        result = subprocess.run(words, cwd=self.folder, capture_output=True, text=True, check=False)
        self.assertEqual(result.returncode, 0, result.stderr)

    def make(self, *, target="macos12", compiler=(), linker=(), platform="macos", minimum="12.0",
             sign="-adhoc_codesign", architectures=ARCHITECTURES, rpaths=(RPATH,), some="Some.tbd"):
        look_in = [word for rpath in rpaths for word in ("-rpath", rpath)]
        for architecture in architectures:
            self.run_tool("clang-19", f"--target={architecture}-apple-{target}", "-c", *compiler, "main.c",
                          "-o", "main.o")
            self.run_tool("ld64.lld-19", "-arch", architecture, "-platform_version", platform, minimum,
                          "14.0", sign, *look_in, *linker, "System.tbd", some, "main.o", "-o", architecture)
        self.run_tool("llvm-lipo-19", "-create", *architectures, "-output", "program")

    def check(self):
        result = subprocess.run([CHECK, self.path("expected"), self.path("program")],
                                capture_output=True, text=True, check=False)
        prefix = self.path("program") + ": "
        return result.returncode, [line.removeprefix(prefix) for line in result.stderr.splitlines()]

    def assert_refused(self, *complaints):
        self.assertEqual(self.check(), (1, list(complaints)))

    def change(self, change):
        """Calls change(part) with each architecture's part of the program, which it may write to."""
        with open(self.path("program"), "rb") as file:
            data = bytearray(file.read())
        for i in range(struct.unpack(">I", data[4:8])[0]):
            _, _, offset, size, _ = struct.unpack_from(">5I", data, 8 + 20 * i)
            part = data[offset:offset + size]
            change(part)
            data[offset:offset + size] = part
        with open(self.path("program"), "wb") as file:
            file.write(data)

    def test_that_are_as_expected_pass(self):
        self.expect()
        self.make()
        self.assertEqual(self.check(), (0, []))

    def test_that_are_as_expected_pass_in_a_file_with_long_places_too(self):
        self.expect()
        self.make()
        self.run_tool("llvm-lipo-19", "-create", *ARCHITECTURES, "-fat64", "-output", "program")
        with open(self.path("program"), "rb") as file:
            self.assertEqual(file.read(4), b"\xca\xfe\xba\xbf")
        self.assertEqual(self.check(), (0, []))

    def test_of_one_architecture_are_refused(self):
        self.expect()
        self.make(architectures=("arm64",))
        self.assert_refused("its architectures are ['arm64'], not ['arm64', 'x86_64']")

    def test_for_another_platform_are_refused(self):
        self.expect(minimum="14.0")
        self.make(target="ios14.0-macabi", platform="mac-catalyst", minimum="14.0")
        self.assert_refused("arm64: made for platform 6, not macOS", "x86_64: made for platform 6, not macOS")

    def test_that_do_not_say_their_platform_in_today_s_way_are_refused(self):
        self.expect()
        self.make(target="macos10.12", minimum="10.12", linker=("-no_fixup_chains",))
        status, complaints = self.check()
        self.assertEqual(status, 1)
        self.assertIn("x86_64: made for platform None, not macOS", complaints)

    def test_for_a_newer_or_an_older_system_are_refused(self):
        self.make(minimum="13.0")
        for minimum in ("12.0", "14.0"):
            self.expect(minimum=minimum)
            self.assert_refused(*(f"{architecture}: needs at least system 13.0, not {minimum}"
                                  for architecture in ("arm64", "x86_64")))

    def test_with_a_library_more_or_fewer_are_refused(self):
        self.make()
        self.expect(libraries=((SYSTEM,), ("/usr/lib/libother.dylib",)))
        self.assert_refused(*(f"{architecture}: {fault}" for architecture in ("arm64", "x86_64")
                              for fault in (f"loads {SOME}, which is not expected",
                                            "does not load /usr/lib/libother.dylib")))

    def test_that_look_for_libraries_elsewhere_are_refused(self):
        self.expect()
        for rpaths in ((), (RPATH, "/usr/local/lib"), ("/usr/local/lib",)):
            with self.subTest(rpaths):
                self.make(rpaths=rpaths)
                fault = f"looks for libraries in {list(rpaths)}, not in {RPATH} alone"
                self.assert_refused(f"arm64: {fault}", f"x86_64: {fault}")

    def test_that_load_a_library_only_where_it_is_there_are_refused(self):
        self.make(linker=("-weak_library", "Some.tbd"), some="System.tbd")
        self.expect(libraries=((SYSTEM,),))
        self.assert_refused(*(f"{architecture}: loads {SOME}, which is not expected"
                              for architecture in ("arm64", "x86_64")))

    def test_that_take_a_name_more_or_fewer_are_refused(self):
        self.make(compiler=("-DANOTHER",))
        self.expect(libraries=((SYSTEM,), (SOME, "_take", "_gone")))
        self.assert_refused(*(f"{architecture}: {fault}" for architecture in ("arm64", "x86_64")
                              for fault in ("takes _another from Some, which is not expected",
                                            "does not take _gone from Some")))

    def test_that_take_a_name_from_nowhere_are_refused(self):
        self.write("Some.tbd", LIBRARY % (SOME, "_take"))
        self.make(compiler=("-DANOTHER",), linker=("-undefined", "dynamic_lookup"))
        self.expect()
        self.assert_refused(*(f"{architecture}: takes _another from nowhere"
                              for architecture in ("arm64", "x86_64")))

    def test_that_are_not_signed_are_refused(self):
        self.expect()
        self.make(sign="-no_adhoc_codesign")
        self.assert_refused("a part of it is not signed", "a part of it is not signed")

    def test_that_were_changed_afterwards_are_refused(self):
        self.expect()
        self.make()

        def change(part):
            reserved = 28  # a field of the header that nobody reads
            self.assertEqual(part[reserved], 0)
            part[reserved] = 1

        self.change(change)
        self.assert_refused(*["1 pages differ from what the signature says"] * 2)

    def test_whose_signature_does_not_cover_all_of_them_are_refused(self):
        self.expect()
        self.make()

        def change(part):
            directory = part.index(b"\xfa\xde\x0c\x02")
            struct.pack_into(">I", part, directory + 28, 1)

        self.change(change)
        status, complaints = self.check()
        self.assertEqual((status, len(complaints)), (1, 2))
        for complaint in complaints:
            self.assertRegex(complaint, "^its signature covers [0-9]+ bytes of [0-9]+$")

    def test_whose_signature_has_another_form_are_refused(self):
        self.expect()
        self.make()

        def change(part):
            directory = part.index(b"\xfa\xde\x0c\x02")
            part[directory + 37] = 1  # the kind of digest: SHA-1

        self.change(change)
        self.assert_refused(*["a part of it has a signature of another form"] * 2)

    def test_are_refused_when_nobody_says_what_is_expected(self):
        self.make()
        whole = ["minimum 12.0\n", f"rpath {RPATH}\n", SYSTEM + "\n"]
        for text in ("", *("".join(line for line in whole if line != left_out) for left_out in whole)):
            self.write("expected", text)
            status, complaints = self.check()
            self.assertEqual(status, 1)
            self.assertRegex(complaints[0], " lacks the minimum system, the rpath or the libraries$")


if __name__ == "__main__":
    unittest.main()
