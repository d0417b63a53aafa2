# For people: each goal configures and builds with CMake under build/<target>. i386 is left out,
# with a word about it, where the machine cannot build and run 32-bit programs.
JOBS ?= $(shell nproc)
FILE ?= /usr/share/sounds/alsa/Front_Center.wav
PREFIX ?= /usr/local
export DESTDIR

.PHONY: all test demo bench tune install header clean

all:
	@tools/build.sh "$(JOBS)"

test:
	@tools/install-dependencies.sh test
	@tools/build.sh "$(JOBS)" -DKFM_BUILD_TESTS=ON -DKFM_BUILD_TOOL=ON
	@ctest --test-dir build --output-on-failure --no-tests=error --parallel "$(JOBS)"

demo:
	@tools/install-dependencies.sh demo
	@TARGETS=x86-64 tools/build.sh "$(JOBS)" -DKFM_BUILD_TOOL=ON
	@build/x86-64/bin/kfmgen spectrum "$(FILE)"

bench:
	@tools/install-dependencies.sh bench
	@tools/build.sh "$(JOBS)" -DKFM_BUILD_BENCHMARKS=ON
	@set -e; for target in $$(cat build/targets); do cmake --build build/$$target --target bench; done

tune:
	@tools/install-dependencies.sh bench
	@tools/build.sh "$(JOBS)" -DKFM_BUILD_BENCHMARKS=ON
	@set -e; for target in $$(cat build/targets); do cmake --build build/$$target --target tune; done

install:
	@tools/build.sh "$(JOBS)"
	@set -e; for target in $$(cat build/targets); do cmake --install build/$$target --prefix "$(PREFIX)"; done

header:
	@TARGETS=x86-64 GOAL=header tools/build.sh "$(JOBS)"

clean:
	rm -rf build
