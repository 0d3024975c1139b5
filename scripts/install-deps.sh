#!/usr/bin/env bash
# Installs the Debian packages Meridian Codex needs to build, test and run.
# Idempotent: when everything is present it only checks and says so.
set -euo pipefail

packages=(
  build-essential cmake ninja-build pkg-config ccache
  qt6-base-dev qt6-multimedia-dev
  libgmp-dev libmpfr-dev libflint-dev libprimesieve-dev libprimecount-dev
  libcurl4-openssl-dev
  libgtest-dev libgmock-dev libbenchmark-dev
  xvfb xauth fonts-liberation
)

missing=()
for p in "${packages[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed'; then
    missing+=("$p")
  fi
done

if [ ${#missing[@]} -eq 0 ]; then
  echo "install-deps: all ${#packages[@]} packages present"
  exit 0
fi

echo "install-deps: installing ${missing[*]}"
if [ "$(id -u)" -eq 0 ]; then
  sudo=()
elif command -v sudo >/dev/null 2>&1; then
  sudo=(sudo)
else
  echo "install-deps: need root or sudo to install: ${missing[*]}" >&2
  exit 1
fi
export DEBIAN_FRONTEND=noninteractive
"${sudo[@]}" apt-get update -qq
"${sudo[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
echo "install-deps: done"
