# deckforge: the two commands a newcomer needs are `make demo` and `make test`.
BUILD      ?= build
BUILD_SAN  ?= build-asan
JOBS       ?= $(shell nproc)
GENERATOR  := $(shell command -v ninja >/dev/null 2>&1 && echo "-G Ninja")
# A compiler cache, where one is installed, makes rebuilds in other checkouts cheap.
LAUNCHER   := $(shell command -v ccache >/dev/null 2>&1 && echo "-DCMAKE_C_COMPILER_LAUNCHER=ccache -DCMAKE_CXX_COMPILER_LAUNCHER=ccache")

.PHONY: all setup configure build test test-native test-sanitize demo clean format package

all: build

setup:
	@bash scripts/setup

$(BUILD)/CMakeCache.txt:
	cmake -S . -B $(BUILD) $(GENERATOR) $(LAUNCHER) -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_FLAGS_RELWITHDEBINFO="-O2 -g1 -DNDEBUG" \
	  -DDECKFORGE_PCH=TESTS

configure: setup $(BUILD)/CMakeCache.txt

build: configure
	cmake --build $(BUILD) -j $(JOBS)

# A deck of every real template, twice through the schema check: minutes of
# xmllint and Python under the sanitizers for code that the other unit tests
# already run there; the plain build runs it.
SANITIZE_SKIP := EveryRealTemplateGivesADeckThatStrictReadersOpen

# Unit tests again under AddressSanitizer and UndefinedBehaviorSanitizer, and
# the fuzz targets (tests/fuzz) for a short while. Built by clang with
# precompiled headers, in half of gcc's time, and with libFuzzer, which gcc
# lacks; a sanitizer build that gcc made earlier is made anew.
$(BUILD_SAN)/CMakeCache.txt:
	CC=clang CXX=clang++ cmake -S . -B $(BUILD_SAN) $(GENERATOR) $(LAUNCHER) -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG=-g1 \
	  -DDECKFORGE_SANITIZE=ON -DDECKFORGE_UNIT_TESTS_ONLY=ON -DDECKFORGE_FUZZ=ON -DDECKFORGE_PCH=ALL

test-native: build
	cd $(BUILD) && ctest --output-on-failure -j $(JOBS)

test-sanitize: setup
	@grep -qs '^CMAKE_CXX_COMPILER:.*clang' $(BUILD_SAN)/CMakeCache.txt || rm -rf $(BUILD_SAN)
	$(MAKE) --no-print-directory $(BUILD_SAN)/CMakeCache.txt
	cmake --build $(BUILD_SAN) -j $(JOBS)
	cd $(BUILD_SAN) && DECKFORGE_NO_OFFICE=1 ASAN_OPTIONS=detect_leaks=1 ctest --output-on-failure -j $(JOBS) -L 'unit|fuzz' \
	  -E "$(SANITIZE_SKIP)"

test: test-native test-sanitize

# examples/demo.m: a small deck in out/demo.pptx, and PNGs of its slides
# beside it when LibreOffice is installed. Octave has a `demo` of its own,
# which the example shadows on purpose.
demo: build
	octave --no-gui --norc --no-window-system --no-history --eval \
	  "warning('off', 'Octave:shadowed-function'); addpath('$(abspath $(BUILD))', '$(CURDIR)/examples'); demo;"

# The Octave source package: $(BUILD)/deckforge-<version>.tar.gz, for `pkg install`,
# which compiles it against the installing Octave.
package: build
	cmake --build $(BUILD) --target deckforge_octave_package

format:
	find src tests bench examples -name '*.cpp' -o -name '*.h' | xargs clang-format -i

clean:
	rm -rf $(BUILD) $(BUILD_SAN)
