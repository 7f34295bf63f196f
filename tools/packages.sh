# Installs the Debian packages that are named and missing. Sourced by ./run, ./test and .ci/run.

install_missing() {
  local missing=()
  local package
  for package in "$@"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  local root=()
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || {
      echo "These packages are missing, and there is no sudo to install them: ${missing[*]}" >&2
      return 1
    }
    root=(sudo)
  fi
  echo "Installing: ${missing[*]}"
  "${root[@]}" apt-get update -qq
  DEBIAN_FRONTEND=noninteractive "${root[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# What the program needs to be built, and to start on a desktop.
BUILD_PACKAGES=(g++ cmake ninja-build qt6-base-dev qt6-translations-l10n fonts-liberation)
# What the tests and benchmarks need besides.
TEST_PACKAGES=(ccache libgtest-dev libbenchmark-dev poppler-utils
  desktop-file-utils appstream lintian shared-mime-info libxml2-utils dpkg-dev file)
# What building the Debian package needs besides.
PACKAGE_PACKAGES=(dpkg-dev file)
# What fuzzing needs besides.
FUZZ_PACKAGES=(clang-14 libclang-rt-14-dev)
# What the format and lint checks need besides.
LINT_PACKAGES=(clang-format-14 clang-tidy-14)
