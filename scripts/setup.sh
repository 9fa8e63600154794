#!/bin/bash
# Installs what building, testing and the demonstration need on a Debian machine. Where all of it is there already, it
# does nothing and takes a fraction of a second.
set -euo pipefail

PACKAGES=(
  cmake ninja-build g++ libc6-dev python3 python3-pefile locales
  googletest libgtest-dev libbenchmark-dev nlohmann-json3-dev
  g++-mingw-w64-i686-posix
  wine wine32:i386 fonts-wine
  xvfb openbox xdotool x11-utils imagemagick
  neovim chromium
)
# Another Node.js than Debian's serves as well.
command -v node >/dev/null || PACKAGES+=(nodejs)
command -v npm >/dev/null || PACKAGES+=(npm)
LOCALE=de_DE.UTF-8

fail() {
  echo "setup: $*" >&2
  exit 1
}

missing_packages() {
  local package
  declare -A installed
  while read -r status package; do
    [ "$status" = installed ] && installed[$package]=1 && installed[${package%%:*}]=1
  done < <(dpkg-query -W -f='${db:Status-Status} ${Package}:${Architecture}\n')
  for package in "${PACKAGES[@]}"; do
    [ -n "${installed[$package]:-}" ] || echo "$package"
  done
}

locale_missing() { ! locale -a 2>/dev/null | grep -qix 'de_DE.utf-\?8'; }

command -v dpkg-query >/dev/null && command -v apt-get >/dev/null ||
  fail "this machine has no apt-get; install by other means: ${PACKAGES[*]}"

mapfile -t missing < <(missing_packages)
if [ ${#missing[@]} -eq 0 ] && ! locale_missing; then exit 0; fi

as_root=()
if [ "$(id -u)" -ne 0 ]; then
  command -v sudo >/dev/null || fail "these packages are missing, and there is neither root nor sudo: ${missing[*]}"
  as_root=(sudo)
fi
root() { "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive LC_ALL=C "$@"; }

if [ ${#missing[@]} -gt 0 ]; then
  echo "setup: installing ${missing[*]}"
  log=$(mktemp)
  trap 'rm -f "$log"' EXIT

  dpkg --print-foreign-architectures | grep -qx i386 || root dpkg --add-architecture i386
  # An index of the security archive is at times out of step with its signature. The base release serves all the same,
  # so an error here is no reason to stop; what really cannot be had shows at the installation.
  root apt-get update >"$log" 2>&1 || true

  # 32-bit and 64-bit libraries must be of one version, and only the base release has both for certain.
  . /etc/os-release
  release=()
  if [ "${ID:-}" = debian ] && [ -n "${VERSION_CODENAME:-}" ]; then release=(-t "$VERSION_CODENAME"); fi
  install=(apt-get install -y --no-install-recommends)
  if ! root "${install[@]}" "${release[@]}" "${missing[@]}" >>"$log" 2>&1 &&
    ! root "${install[@]}" "${missing[@]}" >>"$log" 2>&1; then
    tail -n 15 "$log" >&2
    mapfile -t missing < <(missing_packages)
    case " ${missing[*]} " in
      *" wine32:i386 "*) fail "the 32-bit part of Wine (wine32:i386) cannot be had on this machine." ;;
      *) fail "these packages cannot be had on this machine: ${missing[*]}" ;;
    esac
  fi
fi

if locale_missing; then
  echo "setup: generating the locale $LOCALE"
  root sed -i "s/^# *\($LOCALE UTF-8\)/\1/" /etc/locale.gen
  grep -q "^$LOCALE UTF-8" /etc/locale.gen || echo "$LOCALE UTF-8" | root tee -a /etc/locale.gen >/dev/null
  root locale-gen >/dev/null || fail "the locale $LOCALE cannot be generated."
fi
