# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""What pyproject.toml can't say: the extension module is built by CMake, with the library that it stands on beside it.

VYR_BUILD names a folder of a build that is there already, which is then used instead of a build from nothing.
"""

import os
import shutil
import subprocess
import sys
from pathlib import Path

from setuptools import Extension, setup
from setuptools.command.build_ext import build_ext

ROOT = Path(__file__).resolve().parent


class CMakeBuild(build_ext):
    def build_extension(self, extension):
        built = os.environ.get("VYR_BUILD")
        folder = Path(built) if built else ROOT / "build" / "wheel"
        generator = ["-G", "Ninja"] if shutil.which("ninja") else []

        def cmake(*arguments):
            subprocess.run(["cmake", *map(str, arguments)], check=True)

        if not built:
            cmake("-S", ROOT, "-B", folder, *generator, "-DCMAKE_BUILD_TYPE=Release", "-DVYR_BUILD_TESTS=OFF",
                  "-DVYR_BUILD_TOOLS=OFF", f"-DPython3_EXECUTABLE={sys.executable}")
        cmake("--build", folder, "--target", "vyr_python", "--parallel", os.cpu_count() or 1)
        stage = Path(self.build_temp).resolve() / "stage"
        for component in ("python_module", "python_libraries"):
            cmake("--install", folder, "--component", component, "--prefix", stage, "--strip")
        place = Path(self.get_ext_fullpath(extension.name)).parent
        place.mkdir(parents=True, exist_ok=True)
        for file in stage.glob("**/*.so*"):
            shutil.copy(file, place / file.name)


setup(ext_modules=[Extension("vyr._vyr", [], py_limited_api=True)], cmdclass={"build_ext": CMakeBuild},
      options={"bdist_wheel": {"py_limited_api": "cp311"}})
