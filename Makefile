# The two commands of the README: `make demo` and `make test`.
# Both install what they need first (scripts/bootstrap), then build with the
# CMake presets. PRESET=release|asan picks another build.

PRESET ?= default
BUILD_DIR := build/$(PRESET)
JOBS ?= $(shell nproc 2>/dev/null || echo 2)
# CI builds treat warnings as errors.
WERROR := $(if $(CI),ON,OFF)

.PHONY: all bootstrap configure build test demo docs-screenshots bench screenshots format format-check clean

all: build

bootstrap:
	@scripts/bootstrap

configure: bootstrap
	cmake --preset $(PRESET) -DTOVUKIT_WERROR=$(WERROR)

build: configure
	cmake --build --preset $(PRESET) -j $(JOBS)

test: build
	ctest --preset $(PRESET) -j $(JOBS)

# tovu-demo: its window where there is a display; without one it answers the
# survey with every question type by itself, prints the response the backend
# stored and leaves a screenshot of every page. DEMO_ARGS passes options on,
# e.g. make demo DEMO_ARGS="--offline-first --dark" (tovu-demo --help lists them).
# FRONTEND=quick runs its Qt Quick twin, tovu-quickdemo, instead (same options).
FRONTEND ?= widgets
DEMO_ARGS ?=
ifeq ($(FRONTEND),quick)
DEMO_TARGET := tovu-quickdemo
DEMO := $(BUILD_DIR)/examples/quickdemo/tovu-quickdemo
DEMO_SHOTS := $(BUILD_DIR)/quickdemo-screenshots
else
DEMO_TARGET := tovu-demo
DEMO := $(BUILD_DIR)/examples/demo/tovu-demo
DEMO_SHOTS := $(BUILD_DIR)/demo-screenshots
endif

demo: configure
	cmake --build --preset $(PRESET) -j $(JOBS) --target $(DEMO_TARGET)
	$(DEMO) --screenshots $(DEMO_SHOTS) $(DEMO_ARGS)

# The README's pictures in docs/screenshots/: the demo's autoplay, one PNG per
# page of the every-question-type sample and one of the window, 256 colours.
docs-screenshots: configure
	cmake --build --preset $(PRESET) -j $(JOBS) --target tovu-demo
	rm -f docs/screenshots/*.png
	QT_QPA_PLATFORM=offscreen $(BUILD_DIR)/examples/demo/tovu-demo --autoplay --palette-png --screenshots docs/screenshots > /dev/null
	@ls docs/screenshots

# PNGs of the survey sheet, its pages and the widget kit, light and dark, at 2x.
screenshots: build
	$(BUILD_DIR)/tools/screenshots/tovu-screenshots build/screenshots

bench:
	$(MAKE) build PRESET=release
	@for b in build/release/bench/bench_*; do [ -x "$$b" ] && "$$b"; done
	cmake --build --preset release --target bench_sizes
	TOVU_CRASH_ROUNDS=1000 build/release/tests/integration/tst_queuecrash

format:
	scripts/format --fix

format-check:
	scripts/format

clean:
	rm -rf build
