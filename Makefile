# The two commands of the README: `make demo` and `make test`.
# Both install what they need first (scripts/bootstrap), then build with the
# CMake presets. PRESET=release|asan picks another build.

PRESET ?= default
BUILD_DIR := build/$(PRESET)
JOBS ?= $(shell nproc 2>/dev/null || echo 2)
# CI builds treat warnings as errors.
WERROR := $(if $(CI),ON,OFF)

.PHONY: all bootstrap configure build test demo bench screenshots format format-check clean

all: build

bootstrap:
	@scripts/bootstrap

configure: bootstrap
	cmake --preset $(PRESET) -DTOVUKIT_WERROR=$(WERROR)

build: configure
	cmake --build --preset $(PRESET) -j $(JOBS)

test: build
	ctest --preset $(PRESET) -j $(JOBS)

# Until the demo application lands, the demo shows what the library makes of
# every bundled survey document.
demo: build
	$(BUILD_DIR)/tools/inspect/tovu-inspect samples/surveys/*.json

# PNGs of the survey sheet, its pages and the widget kit, light and dark, at 2x.
screenshots: build
	$(BUILD_DIR)/tools/screenshots/tovu-screenshots build/screenshots

bench:
	$(MAKE) build PRESET=release
	@for b in build/release/bench/bench_*; do [ -x "$$b" ] && "$$b"; done
	TOVU_CRASH_ROUNDS=1000 build/release/tests/integration/tst_queuecrash

format:
	scripts/format --fix

format-check:
	scripts/format

clean:
	rm -rf build
