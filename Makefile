# Meridian Codex: the commands a developer and CI use.
#   make run    install what is missing, build, start the program
#   make test   install what is missing, build, run every test
#   make bench  build and run the benchmarks
BUILD ?= build
BUILD_TYPE ?= RelWithDebInfo
JOBS ?= $(shell nproc)

.PHONY: all deps configure build run test bench clean screenshots

all: build

deps:
	@scripts/install-deps.sh

configure: deps
	@if [ ! -f $(BUILD)/build.ninja ]; then \
	  cmake -S . -B $(BUILD) -G Ninja -DCMAKE_BUILD_TYPE=$(BUILD_TYPE); \
	fi

build: configure
	@cmake --build $(BUILD) -j $(JOBS)

run: build
	@$(BUILD)/bin/codex

test: build
	@ctest --test-dir $(BUILD) -j $(JOBS) --output-on-failure --timeout 900

bench: build
	@for b in $(BUILD)/bench/*_bench; do echo "== $$b"; $$b --benchmark_min_time=0.2; done

clean:
	@rm -rf $(BUILD)

# Pictures of every built screen under Xvfb, for reviewing layouts (not committed).
screenshots: build
	@xvfb-run -a -s "-screen 0 1600x1200x24" $(BUILD)/bin/codex --screenshots $(BUILD)/screenshots
	@ls $(BUILD)/screenshots
