# Copyright 2026 The Vyr Authors
# SPDX-License-Identifier: Apache-2.0
"""The recipe for Conan 2: `conan create .` builds the library, `-o "vyr/*:shared=True"` the shared one."""

import re
from pathlib import Path

from conan import ConanFile
from conan.errors import ConanInvalidConfiguration
from conan.tools.build import check_min_cppstd
from conan.tools.cmake import CMake, CMakeDeps, CMakeToolchain, cmake_layout
from conan.tools.files import copy, rmdir


class VyrConan(ConanFile):
    name = "vyr"
    description = "Reads, checks, holds and writes colour-data documents"
    license = "Apache-2.0"
    topics = ("color", "palette", "xml")
    package_type = "library"
    settings = "os", "arch", "compiler", "build_type"
    options = {"shared": [True, False], "flat": [True, False], "tools": [True, False]}
    default_options = {"shared": False, "flat": True, "tools": False}
    exports_sources = ("CMakeLists.txt", "LICENSE", "*.md", "cmake/*", "lmx/*", "schema/*", "zip/*", "document/*", "flat/*",
                       "csharp/*", "tools/*", "docs/*", "examples/*")

    def set_version(self):
        text = Path(self.recipe_folder, "CMakeLists.txt").read_text(encoding="utf-8")
        self.version = re.search(r"project\(vyr VERSION (\S+)", text)[1]

    def layout(self):
        cmake_layout(self)

    def requirements(self):
        self.requires("libxml2/[>=2.9.10 <3]")
        self.requires("zlib/[>=1.2.11 <2]")
        self.requires("bzip2/[>=1.0.8 <2]")
        if self.options.tools:
            self.requires("cli11/[>=2.3 <3]", visible=False)
            self.requires("nlohmann_json/[>=3.11 <4]", visible=False)

    def validate(self):
        check_min_cppstd(self, 20)
        if self.settings.os != "Linux":
            raise ConanInvalidConfiguration("vyr is built on Linux only")

    def generate(self):
        CMakeDeps(self).generate()
        toolchain = CMakeToolchain(self)
        toolchain.cache_variables["VYR_BUILD_FLAT"] = bool(self.options.flat)
        toolchain.cache_variables["VYR_BUILD_TOOLS"] = bool(self.options.tools)
        toolchain.cache_variables["VYR_BUILD_TESTS"] = False
        toolchain.generate()

    def build(self):
        cmake = CMake(self)
        cmake.configure()
        cmake.build()

    def package(self):
        copy(self, "LICENSE", self.source_folder, str(Path(self.package_folder, "licenses")))
        CMake(self).install()
        # Conan writes these for the programs that it builds.
        rmdir(self, str(Path(self.package_folder, "lib", "cmake")))
        rmdir(self, str(Path(self.package_folder, "lib", "pkgconfig")))

    def package_info(self):
        self.cpp_info.set_property("cmake_file_name", "vyr")
        self.cpp_info.set_property("cmake_target_name", "vyr::vyr")
        self.cpp_info.set_property("pkg_config_name", "vyr")
        self.cpp_info.includedirs = [str(Path("include", "vyr"))]
        self.cpp_info.libs = ["vyr"]
        self.cpp_info.requires = ["libxml2::libxml2", "zlib::zlib", "bzip2::bzip2"]
        if not self.options.shared:
            self.cpp_info.system_libs = ["dl"]
