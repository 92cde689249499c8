"""The checks of the bundle, on the bundle that this build made and on copies of its files with one
fault each.

  BundleChecksTest.py BUNDLE EXTRA-FILE...      EXTRA-FILE: what this system's bundle has besides
"""
import os
import plistlib
import shutil
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree

PROJECT = os.path.realpath(os.path.join(os.path.dirname(__file__), "../.."))
RESOURCES = os.path.join(PROJECT, "resources")
BUNDLE = None
EXTRA_FILES = []


def run(check, *arguments):
    return subprocess.run([os.path.join(PROJECT, "cmake/macos-check", check), *arguments],
                          capture_output=True, text=True, check=False)


class WithCopy(unittest.TestCase):
    """Has a bundle of its own, with the dictionary and the texts of the built one."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.bundle = os.path.join(folder.name, "Copy.app")
        resources = os.path.join(self.bundle, "Contents/Resources")
        os.makedirs(resources)
        shutil.copy(os.path.join(BUNDLE, "Contents/Info.plist"), os.path.join(self.bundle, "Contents"))
        for name in os.listdir(os.path.join(BUNDLE, "Contents/Resources")):
            if name.endswith(".lproj"):
                shutil.copytree(os.path.join(BUNDLE, "Contents/Resources", name),
                                os.path.join(resources, name))

    def path(self, name):
        return os.path.join(self.bundle, "Contents", name)

    def change(self, change):
        with open(self.path("Info.plist"), "rb") as file:
            info = plistlib.load(file)
        change(info)
        with open(self.path("Info.plist"), "wb") as file:
            plistlib.dump(info, file)

    def rewrite(self, name, old, new):
        with open(self.path(name), encoding="utf-8") as file:
            text = file.read()
        self.assertIn(old, text)
        with open(self.path(name), "w", encoding="utf-8") as file:
            file.write(text.replace(old, new))

    def assert_refused(self, complaint, *options):
        result = run("checkInfoPlist", self.bundle, *options)
        self.assertEqual(result.returncode, 1, result.stderr)
        self.assertIn(complaint, result.stderr)
        self.assertNotIn("Traceback", result.stderr)


class TheDictionary(WithCopy):
    def test_is_as_expected(self):
        result = run("checkInfoPlist", BUNDLE)
        self.assertEqual((result.returncode, result.stderr), (0, ""))

    def test_is_as_expected_in_its_binary_form_too(self):
        with open(self.path("Info.plist"), "rb") as file:
            info = plistlib.load(file)
        with open(self.path("Info.plist"), "wb") as file:
            plistlib.dump(info, file, fmt=plistlib.FMT_BINARY)
        result = run("checkInfoPlist", self.bundle)
        self.assertEqual((result.returncode, result.stderr), (0, ""))

    def test_is_refused_without_any_one_of_its_keys(self):
        with open(self.path("Info.plist"), "rb") as file:
            whole = plistlib.load(file)
        for key in whole:
            with self.subTest(key):
                with open(self.path("Info.plist"), "wb") as file:
                    plistlib.dump({k: v for k, v in whole.items() if k != key}, file)
                self.assert_refused(f"Info.plist: {key} ")

    def test_is_refused_with_another_version(self):
        self.change(lambda info: info.update(CFBundleVersion="21.0.0.19022"))
        self.assert_refused("CFBundleVersion is '21.0.0.19022', expected '21.0.0.19023'")

    def test_is_refused_when_another_version_is_asked_for(self):
        self.assert_refused("CFBundleShortVersionString is '21.0.0.19023', expected '22.0'",
                            "--version", "22.0")

    def test_is_refused_with_a_value_of_another_type(self):
        self.change(lambda info: info.update(NSHighResolutionCapable=1))
        self.assert_refused("NSHighResolutionCapable is 1, expected True")

    def test_is_refused_with_document_types(self):
        self.change(lambda info: info.update(UTExportedTypeDeclarations=[]))
        self.assert_refused("UTExportedTypeDeclarations must not be there")

    def test_is_refused_with_a_key_that_nobody_expects(self):
        self.change(lambda info: info.update(LSUIElement=True))
        self.assert_refused("LSUIElement is not expected")

    def test_is_refused_when_it_is_missing_empty_cut_off_or_no_dictionary(self):
        with open(self.path("Info.plist"), "rb") as file:
            whole = file.read()
        for content in (b"", whole[: len(whole) // 2], b"bplist00", b"text", plistlib.dumps([])):
            with self.subTest(content[:20]):
                with open(self.path("Info.plist"), "wb") as file:
                    file.write(content)
                self.assert_refused("checkInfoPlist: Info.plist: ")
        os.remove(self.path("Info.plist"))
        self.assert_refused("checkInfoPlist: Info.plist: ")


class TheTexts(WithCopy):
    german = "Resources/de.lproj/InfoPlist.strings"

    def test_are_refused_when_a_language_lacks_its_file(self):
        os.remove(self.path(self.german))
        self.assert_refused("de.lproj/InfoPlist.strings: ")

    def test_are_refused_when_a_language_lacks_a_key(self):
        self.rewrite(self.german, '"CFBundleName" = "Installationsprogramm von Scrivel 21";\n', "")
        self.assert_refused("de.lproj/InfoPlist.strings: CFBundleName is missing")

    def test_are_refused_with_a_key_that_the_dictionary_lacks(self):
        self.rewrite(self.german, '"CFBundleName"', '"CFBundleNames"')
        self.assert_refused("de.lproj/InfoPlist.strings: CFBundleNames is not expected")

    def test_are_refused_when_a_line_is_broken(self):
        self.rewrite(self.german, '21";\n', '21"\n')
        self.assert_refused('de.lproj/InfoPlist.strings: line 1 is not "key" = "text";')

    def test_are_refused_when_they_are_not_in_utf_8(self):
        with open(self.path(self.german), "ab") as file:
            file.write(b"\xff\xfe")
        self.assert_refused("de.lproj/InfoPlist.strings: ")

    def test_are_refused_when_a_sentence_was_not_translated(self):
        with open(self.path("Resources/en.lproj/InfoPlist.strings"), "rb") as file:
            english = file.read()
        with open(self.path(self.german), "wb") as file:
            file.write(english)
        self.assert_refused("NSDesktopFolderUsageDescription is in English")

    def test_name_the_installer_as_the_catalogue_does(self):
        for name in os.listdir(RESOURCES):
            if not name.endswith(".lproj"):
                continue
            language = name.removesuffix(".lproj")
            with self.subTest(language):
                catalogue = ElementTree.parse(
                    os.path.join(RESOURCES, "translations", f"scrivel_{language}.ts"))
                translated = [message.findtext("translation") for message in catalogue.iter("message")
                              if message.findtext("source") == "Scrivel 21 Installer"]
                self.assertEqual(len(translated), 1)
                with open(os.path.join(RESOURCES, name, "InfoPlist.strings"), encoding="utf-8") as file:
                    strings = file.read()
                for key in ("CFBundleDisplayName", "CFBundleName"):
                    self.assertIn(f'"{key}" = "{translated[0]}";', strings)

    def test_say_of_the_copyright_what_the_product_says(self):
        with open(os.path.join(RESOURCES, "About.txt"), encoding="utf-8") as file:
            about = file.read().splitlines()
        with open(os.path.join(RESOURCES, "en.lproj/InfoPlist.strings"), encoding="utf-8") as file:
            self.assertIn(f'"NSHumanReadableCopyright" = "{about[1]}";', file.read())


class TheFiles(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.bundle = os.path.join(folder.name, "Some.app")
        self.list = os.path.join(folder.name, "files")
        self.write("Contents/Info.plist")
        self.write("Contents/Importer/deep/below")
        self.expect("Contents/Importer/*", "Contents/Info.plist")

    def write(self, name):
        path = os.path.join(self.bundle, name)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "w", encoding="utf-8") as file:
            file.write(name)

    def expect(self, *lines):
        with open(self.list, "w", encoding="utf-8") as file:
            file.write("".join(line + "\n" for line in lines))

    def check(self, *options):
        result = run("checkBundleFiles", self.bundle, "--list", self.list, *options)
        return result.returncode, result.stderr.strip()

    def test_of_the_built_bundle_are_those_of_the_list(self):
        also = [argument for file in EXTRA_FILES for argument in ("--also", file)]
        result = run("checkBundleFiles", BUNDLE, *also)
        self.assertEqual((result.returncode, result.stderr), (0, ""))

    def test_are_accepted_when_each_line_has_a_file_and_each_file_a_line(self):
        self.assertEqual(self.check(), (0, ""))

    def test_are_refused_when_one_is_missing(self):
        os.remove(os.path.join(self.bundle, "Contents/Info.plist"))
        self.assertEqual(self.check(), (1, "checkBundleFiles: missing: Contents/Info.plist"))

    def test_are_refused_when_a_star_stands_for_none(self):
        shutil.rmtree(os.path.join(self.bundle, "Contents/Importer"))
        os.makedirs(os.path.join(self.bundle, "Contents/Importer"))
        self.assertEqual(self.check(), (1, "checkBundleFiles: missing: Contents/Importer/*"))

    def test_are_refused_when_there_is_one_too_many(self):
        self.write("Contents/.DS_Store")
        self.assertEqual(self.check(), (1, "checkBundleFiles: not expected: Contents/.DS_Store"))

    def test_include_links(self):
        os.symlink("Importer", os.path.join(self.bundle, "Contents/Link"))
        self.assertEqual(self.check(), (1, "checkBundleFiles: not expected: Contents/Link"))
        self.assertEqual(self.check("--also", "Contents/Link"), (0, ""))

    def test_are_refused_when_the_list_is_not_sorted(self):
        self.expect("Contents/Info.plist", "Contents/Importer/*")
        status, complaint = self.check()
        self.assertEqual(status, 1)
        self.assertIn("not sorted", complaint)

    def test_are_refused_when_there_is_no_bundle(self):
        shutil.rmtree(self.bundle)
        status, complaint = self.check()
        self.assertEqual(status, 1)
        self.assertIn("no such bundle", complaint)


if __name__ == "__main__":
    BUNDLE, *EXTRA_FILES = sys.argv[1:]
    unittest.main(argv=sys.argv[:1])
