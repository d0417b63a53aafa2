# For people: each goal configures and builds with CMake under build/<target>. i386 is left out,
# with a word about it, where the machine cannot build and run 32-bit programs. A compiler named by
# CXX has a folder of its own, build/<compiler>/<target>, so that builds never mix.
JOBS ?= $(shell nproc)
FILE ?= /usr/share/sounds/alsa/Front_Center.wav
PREFIX ?= /usr/local
export DESTDIR

COMPILER := $(if $(filter-out default,$(origin CXX)),$(shell echo "$(notdir $(CXX))" | tr ' ' -))
export BUILD := build$(addprefix /,$(filter-out g++,$(COMPILER)))
EACH_TARGET = set -e; for target in $$(cat "$$BUILD/targets"); do

.PHONY: all test test-aarch64 test-aarch64-selection test-sanitized memcheck demo bench \
	measurements instructions tune install uninstall packages packages-aarch64 test-packages \
	header format tidy docs clean

all:
	@tools/build.sh "$(JOBS)"

test:
	@tools/install-dependencies.sh test
	@tools/build.sh "$(JOBS)" -DKFM_BUILD_TESTS=ON -DKFM_BUILD_TOOL=ON \
		-DKFM_BUILD_PYTHON=ON -DKFM_PYTHON=/usr/bin/python3
	@ctest --test-dir "$$BUILD" --output-on-failure --no-tests=error --parallel "$(JOBS)"

# Elsewhere by a cross compiler and an emulator, which takes long: a selection says most of it.
test-aarch64:
	@tools/install-dependencies.sh test-aarch64
	@TARGETS=aarch64 tools/build.sh "$(JOBS)" -DKFM_BUILD_TESTS=ON
	@ctest --test-dir "$$BUILD/aarch64" --output-on-failure --no-tests=error --parallel "$(JOBS)"

test-aarch64-selection:
	@tools/install-dependencies.sh test-aarch64
	@TARGETS=aarch64 GOAL=selection_tests tools/build.sh "$(JOBS)" -DKFM_BUILD_TESTS=ON
	@ctest --test-dir "$$BUILD/aarch64" -C selection -R "^selection/" --output-on-failure \
		--no-tests=error --parallel "$(JOBS)"

test-sanitized: export BUILD := $(BUILD)/sanitized
test-sanitized:
	@tools/install-dependencies.sh test
	@tools/build.sh "$(JOBS)" -DKFM_BUILD_TESTS=ON -DKFM_BUILD_TOOL=ON \
		-DKFM_SANITIZE=address,undefined -DKFM_VARIANTS=OFF
	@ctest --test-dir "$$BUILD" --output-on-failure --no-tests=error --parallel "$(JOBS)"

memcheck:
	@tools/install-dependencies.sh test
	@GOAL=memcheck_tests tools/build.sh "$(JOBS)" -DKFM_BUILD_TESTS=ON
	@ctest --test-dir "$$BUILD" -C memcheck -R "^memcheck$$" --output-on-failure --no-tests=error \
		--parallel "$(JOBS)"

demo:
	@tools/install-dependencies.sh demo
	@TARGETS=own GOAL=kfmgen tools/build.sh "$(JOBS)" -DKFM_BUILD_TOOL=ON
	@"$$BUILD/$$(tools/own_target.sh)/bin/kfmgen" spectrum "$(FILE)"

bench:
	@tools/install-dependencies.sh bench
	@tools/build.sh "$(JOBS)" -DKFM_BUILD_BENCHMARKS=ON -DKFM_BUILD_TOOL=ON
	@$(EACH_TARGET) cmake --build "$$BUILD/$$target" --target bench; done

measurements: bench
	@bench/renew_tables.sh "$$BUILD"

# Of AArch64 beside x86-64, where a cross compiler builds the one and the machine's own the other.
instructions:
	@tools/install-dependencies.sh test-aarch64
	@TARGETS=own GOAL=kfmgenw7 tools/build.sh "$(JOBS)"
	@TARGETS=aarch64 GOAL=kfmgenw7 tools/build.sh "$(JOBS)"
	@bench/count_instructions.sh "$$BUILD" > "$$BUILD/instructions.csv"
	@bench/renew_tables.sh "$$BUILD"

tune:
	@tools/install-dependencies.sh bench
	@tools/build.sh "$(JOBS)" -DKFM_BUILD_BENCHMARKS=ON
	@$(EACH_TARGET) cmake --build "$$BUILD/$$target" --target tune; done

install:
	@[ -n "$$DESTDIR" ] || tools/install-dependencies.sh install || true   # or without the tool
	@tools/build.sh "$(JOBS)" -DKFM_BUILD_TOOL=AUTO
	@tools/install.sh "$(PREFIX)" $$(sed "s,[^ ]*,$$BUILD/&,g" "$$BUILD/targets")
	@[ "$$(id -u)" -ne 0 ] || chown -R --reference=. "$$BUILD"   # a user's, who goes on with it

uninstall:
	@tools/uninstall.sh "$(PREFIX)" $$(sed "s,[^ ]*,$$BUILD/&,g" "$$BUILD/targets")

packages:
	@tools/install-dependencies.sh packages
	@packaging/build.sh "$(JOBS)"

# By a cross compiler: the libraries and what programs are built with.
packages-aarch64:
	@tools/install-dependencies.sh packages-aarch64
	@TARGETS=aarch64 packaging/build.sh "$(JOBS)"

test-packages:
	@tools/install-dependencies.sh test-packages
	@tests/packages/packages_test.sh "$$BUILD/packages"

header:
	@TARGETS=own GOAL=header tools/build.sh "$(JOBS)"

format:
	@tools/install-dependencies.sh format
	@tools/format.sh

tidy:
	@tools/install-dependencies.sh tidy
	@tools/tidy.sh "$(JOBS)"

docs:
	@tools/install-dependencies.sh docs
	@tools/docs.sh "$$BUILD"
	@echo "$$BUILD/docs/index.html"

clean:
	rm -rf build
