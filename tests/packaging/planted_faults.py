"""Plants each fault that a package may have, and expects to be told of it.

    planted_faults.py COMPILER
"""

import json
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

HERE = pathlib.Path(__file__).resolve().parent
LOOK = HERE / "look_at_folder"
MAKE_SBOM = HERE.parents[1] / "packaging/make_sbom.py"
COMPILER = sys.argv.pop()

# Has what each kind of hardening shows itself by: a buffer, an index, a call of printf.
SOURCE = """
#include <cstdio>
#include <vector>
int main(int argc, char** argv) {
  char text[64];
  if (std::fgets(text, argc, stdin) != nullptr) std::printf("%s, %d", text, argc);
  std::vector<int> numbers(argv[0][0]);
  return numbers[argc];
}
"""
HARDENED = ["-O2", "-fPIE", "-pie", "-fstack-protector-strong", "-D_GLIBCXX_ASSERTIONS",
            "-U_FORTIFY_SOURCE", "-D_FORTIFY_SOURCE=2", "-Wl,-z,relro,-z,now,-z,noexecstack"]
OWN = ("norvane", "norvane_office.so", "norvane_workbook.so")
PLANTED = {
    "isn't position-independent": ["-fno-pie", "-no-pie"],
    "has an executable stack": ["-Wl,-z,execstack"],
    "has no RELRO": ["-Wl,-z,norelro"],
    "isn't bound at its start (BIND_NOW)": ["-Wl,-z,lazy"],
    "has no stack protector": ["-fno-stack-protector"],
    "was built without the library's assertions": ["-U_GLIBCXX_ASSERTIONS"],
    "calls printf without FORTIFY": ["-U_FORTIFY_SOURCE"],
    "looks for libraries in /tmp": ["-Wl,-rpath,$ORIGIN/lib:/tmp"],
    "looks for libraries in the current folder": ["-Wl,-rpath,:$ORIGIN/lib"],
}


def look_at(*arguments):
    run = subprocess.run([sys.executable, LOOK, *arguments], stdout=subprocess.PIPE, text=True,
                         check=False)
    return run.returncode, run.stdout.splitlines()


def build(program, *flags):
    subprocess.run([COMPILER, "-x", "c++", "-", *HARDENED, *flags, "-o", program], input=SOURCE,
                   text=True, check=True)


class PlantedFaults(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        place = tempfile.TemporaryDirectory()
        cls.addClassCleanup(place.cleanup)
        cls.hardened = pathlib.Path(place.name) / "hardened"
        build(cls.hardened, "-Wl,-rpath,$ORIGIN/lib")

    def setUp(self):
        place = tempfile.TemporaryDirectory()
        self.addCleanup(place.cleanup)
        self.folder = pathlib.Path(place.name)

    def full_folder(self):
        for name in OWN:
            shutil.copy(self.hardened, self.folder / name)
        (self.folder / "lib").mkdir()
        (self.folder / "lib/libother.so").write_bytes(b"a library of the system's")
        (self.folder / "licences").mkdir()
        (self.folder / "licences/other.txt").write_text("its licence")
        subprocess.run([sys.executable, MAKE_SBOM, self.folder, "1.0"], check=True, text=True,
                       input="libother.so other 2.0 amd64\n")
        return self.folder / "sbom.spdx.json"

    def expect_fault(self, fault):
        status, said = look_at(self.folder)
        self.assertEqual((status, said), (1, [fault]))

    def test_hardened_programs_have_none(self):
        self.assertEqual(look_at("--programs", self.hardened),
                         (0, ["1 programs are hardened"]))

    def test_each_lack_of_hardening_is_told(self):
        for fault, flags in PLANTED.items():
            with self.subTest(fault):
                build(self.folder / "norvane", *flags)
                status, said = look_at("--programs", self.folder / "norvane")
                self.assertEqual(status, 1)
                self.assertIn(f"norvane {fault}", said)

    def test_a_folder_with_all_that_belongs_to_it_has_none(self):
        self.full_folder()
        self.assertEqual(look_at(self.folder)[0], 0)

    def test_a_program_that_lacks_is_told(self):
        sbom = self.full_folder()
        (self.folder / "norvane_office.so").unlink()
        status, said = look_at(self.folder)
        self.assertEqual(status, 1)
        self.assertIn("norvane_office.so isn't there", said)
        self.assertTrue(sbom.exists())

    def test_a_missing_document_is_told(self):
        self.full_folder().unlink()
        self.expect_fault("SBOM: there is none")

    def test_a_changed_file_is_told(self):
        self.full_folder()
        (self.folder / "lib/libother.so").write_bytes(b"another library")
        self.expect_fault("SBOM: ./lib/libother.so has another checksum")

    def test_an_added_file_is_told(self):
        self.full_folder()
        (self.folder / "more").write_bytes(b"")
        self.expect_fault("SBOM: ./more is in one of folder and document alone")

    def test_a_library_without_its_package_is_told(self):
        sbom = self.full_folder()
        document = json.loads(sbom.read_text())
        document["relationships"] = [link for link in document["relationships"]
                                     if not link["relatedSpdxElement"].endswith("libother.so")]
        sbom.write_text(json.dumps(document))
        self.expect_fault("SBOM: ./lib/libother.so belongs to no package")

    def test_a_missing_licence_is_told(self):
        self.full_folder()
        (self.folder / "licences/other.txt").unlink()
        subprocess.run([sys.executable, MAKE_SBOM, self.folder, "1.0"], check=True, text=True,
                       input="libother.so other 2.0 amd64\n")
        self.expect_fault("SBOM: other has no licence in the folder")


if __name__ == "__main__":
    unittest.main()
