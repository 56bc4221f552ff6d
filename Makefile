# Two commands: `make run` and `make test`. Everything else is a helper.
SHELL := /bin/bash
BUILD      ?= build
ASAN_BUILD ?= build-asan
FUZZ_BUILD ?= build-fuzz
SOAK_BUILD ?= build-soak
SOAK_SECONDS ?= 600
SOAK_SEED  ?=
JOBS       ?= $(shell nproc)
GENERATOR  := $(shell command -v ninja >/dev/null 2>&1 && echo "-G Ninja")

BASE_PKGS := cmake ninja-build g++ make libgtest-dev libgmock-dev libbenchmark-dev
QT_PKGS   := qt6-base-dev libgl-dev xvfb xauth desktop-file-utils appstream
PKG_PKGS  := dpkg-dev fakeroot file lintian
FUZZ_PKGS := clang libclang-rt-14-dev

PREFIX     ?= /usr/local

.PHONY: deps run test test-release test-asan soak bench fuzz gallery install package clean

deps:
	@tools/deps.sh $(BASE_PKGS) $(QT_PKGS)

$(BUILD)/build.ninja $(BUILD)/Makefile: deps
	cmake -S . -B $(BUILD) $(GENERATOR) -DCMAKE_BUILD_TYPE=Release

build: deps
	@cmake -S . -B $(BUILD) $(GENERATOR) -DCMAKE_BUILD_TYPE=Release >/dev/null
	cmake --build $(BUILD) -j $(JOBS)

run: build
	@tools/run.sh $(BUILD)

test: deps test-release test-asan

test-release: build
	cd $(BUILD) && ctest --output-on-failure -j $(JOBS)

test-asan: deps
	@cmake -S . -B $(ASAN_BUILD) $(GENERATOR) -DCMAKE_BUILD_TYPE=Debug -DBM_SANITIZE=ON -DBM_BENCH=OFF -DBM_WITH_QT=OFF >/dev/null
	cmake --build $(ASAN_BUILD) -j $(JOBS)
	cd $(ASAN_BUILD) && ctest --output-on-failure -j $(JOBS)

# Every window under random use, in the model and in the Qt front end, under
# AddressSanitizer, UndefinedBehaviorSanitizer and LeakSanitizer: SOAK_SECONDS
# in all, half for each net; the seed is printed and SOAK_SEED runs it again.
soak: deps
	@cmake -S . -B $(SOAK_BUILD) $(GENERATOR) -DCMAKE_BUILD_TYPE=Debug -DBM_SANITIZE=ON -DBM_BENCH=OFF -DBM_WITH_QT=ON >/dev/null
	cmake --build $(SOAK_BUILD) -j $(JOBS) --target soak scenario-runner
	QT_QPA_PLATFORM=offscreen $(SOAK_BUILD)/bin/soak --seconds $(SOAK_SECONDS) --out $(SOAK_BUILD)/soak \
	  $(if $(SOAK_SEED),--seed $(SOAK_SEED))

# The number rules, the start-up against a window with the same menu, and every
# menu item's window (item to first frame, peak memory). Each script prints its
# figures and budgets and writes them into docs/performance.md; both are run
# before the status is given, so one budget missed does not hide the other.
bench: build
	$(BUILD)/bin/core-bench
	@status=0; \
	tools/bench-startup.sh $(BUILD) || status=1; \
	tools/bench-windows.sh $(BUILD) || status=1; \
	exit $$status

# GALLERY_SCALE=1.25, 1.5, 2: the windows as a HiDPI screen shows them, in build/gallery@SCALE.
GALLERY_SCALE ?= 1
GALLERY_DIR := $(BUILD)/gallery$(if $(filter 1,$(GALLERY_SCALE)),,@$(GALLERY_SCALE))

# The screen keeps 1024 by 768 logical pixels at every scale, as a HiDPI laptop does.
GALLERY_SCREEN := $(BUILD)/gallery-screen@$(GALLERY_SCALE).json

gallery: build
	@awk -v s=$(GALLERY_SCALE) 'BEGIN { printf "{\"screens\":[{\"name\":\"gallery\",\"x\":0,\"y\":0,\"width\":%d,\"height\":%d,\"logicalDpi\":96,\"logicalBaseDpi\":96,\"dpr\":1}]}\n", 1024 * s, 768 * s }' > $(GALLERY_SCREEN)
	QT_QPA_PLATFORM=offscreen:configfile=$(GALLERY_SCREEN) QT_SCALE_FACTOR=$(GALLERY_SCALE) \
	  $(BUILD)/bin/bancomisuratore-gallery $(GALLERY_DIR)

fuzz: deps
	@tools/deps.sh $(FUZZ_PKGS)
	@cmake -S . -B $(FUZZ_BUILD) $(GENERATOR) -DCMAKE_BUILD_TYPE=Debug -DBM_FUZZ=ON -DBM_WITH_QT=OFF \
	  -DBM_BENCH=OFF -DCMAKE_CXX_COMPILER=clang++ >/dev/null
	cmake --build $(FUZZ_BUILD) -j $(JOBS) --target number-text-fuzz
	mkdir -p $(FUZZ_BUILD)/corpus
	$(FUZZ_BUILD)/bin/number-text-fuzz -max_total_time=60 -max_len=64 $(FUZZ_BUILD)/corpus tests/fuzz/seeds

# DESTDIR is honoured: make install DESTDIR=/tmp/stage PREFIX=/usr
install: build
	cmake --install $(BUILD) --prefix $(PREFIX)

# A Debian package in $(BUILD), checked by lintian.
package: build
	@tools/deps.sh $(PKG_PKGS)
	cd $(BUILD) && cpack -G DEB
	lintian --fail-on error $(BUILD)/bancomisuratore_*.deb

clean:
	rm -rf $(BUILD) $(ASAN_BUILD) $(FUZZ_BUILD) $(SOAK_BUILD)
