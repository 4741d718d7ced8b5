# shellcheck shell=bash
# shellcheck disable=SC2034  # The lists are read by name, put together from the family and the set.
# What each kind of work needs, by the names that each family of distributions uses, and how it gets here.

# apt: Debian 12, 13 and testing, Ubuntu 24.04. What a release does not have is left out: see need.
apt_build="g++ cmake ninja-build pkg-config ccache qt6-base-dev qt6-svg-dev qt6-svg-plugins qt6-tools-dev
  qt6-tools-dev-tools qt6-l10n-tools libgl-dev libxcb1-dev libxcb-screensaver0-dev libxcb-res0-dev libxcb-sync-dev
  libxcb-randr0-dev libsqlite3-dev libwayland-dev libwayland-bin plasma-wayland-protocols libsm-dev libgtest-dev libbenchmark-dev"
apt_demo="xvfb openbox xterm x11-apps x11-utils xdotool imagemagick fonts-dejavu-core dbus-daemon"
apt_test="xvfb openbox icewm metacity xfwm4 kwin-x11 muffin cinnamon-settings-daemon mutter trayer xterm xdotool
  fonts-dejavu-core dbus-daemon at-spi2-core python3 python3-dbus python3-gi python3-dbusmock gir1.2-gtk-3.0
  gir1.2-gtk-4.0 mousepad featherpad libreoffice-calc-nogui sway labwc phoc miriway mir-platform-graphics-virtual
  mir-platform-rendering-egl-generic foot wtype kwin-wayland gnome-shell xwayland x11-xserver-utils qt6-wayland
  desktop-file-utils sqlite3 poppler-utils"
apt_bench="$apt_demo python3 sway kwin-wayland gnome-shell qt6-wayland dbus-bin"
# For the pictures in Japanese.
apt_pictures="fonts-vlgothic"
apt_lint="clang-format clang-tidy cppcheck shellcheck desktop-file-utils libxml2-utils"
apt_package="dpkg-dev lintian appstream desktop-file-utils gzip flatpak-builder"
apt_format="clang-format"
apt_fuzz="clang libclang-rt-dev"
apt_coverage="gcovr"

# dnf: Fedora
dnf_build="gcc-c++ cmake ninja-build pkgconf-pkg-config ccache qt6-qtbase-devel qt6-qtsvg-devel qt6-qttools-devel qt6-linguist
  libxcb-devel sqlite-devel wayland-devel plasma-wayland-protocols-devel libSM-devel gtest-devel google-benchmark-devel"
dnf_demo="xorg-x11-server-Xvfb openbox xterm xcalc xprop xdotool ImageMagick dejavu-sans-mono-fonts dbus-daemon"
dnf_test="xorg-x11-server-Xvfb openbox icewm metacity trayer xterm xdotool dejavu-sans-mono-fonts dbus-daemon at-spi2-core
  python3-dbus python3-gobject python3-dbusmock gtk3 gtk4 mousepad featherpad libreoffice-calc
  sway foot wtype kwin-wayland gnome-shell xorg-x11-server-Xwayland xhost qt6-qtwayland desktop-file-utils poppler-utils"
dnf_bench="$dnf_demo python3 sway kwin-wayland gnome-shell qt6-qtwayland dbus-tools"
dnf_pictures="vlgothic-fonts"
dnf_lint="clang-tools-extra cppcheck ShellCheck desktop-file-utils libxml2"
dnf_package="appstream desktop-file-utils flatpak-builder"
dnf_format="clang-tools-extra"
dnf_fuzz="clang compiler-rt"
dnf_coverage="gcovr"

# pacman: Arch
pacman_build="gcc cmake ninja pkgconf ccache qt6-base qt6-svg qt6-tools libxcb sqlite wayland plasma-wayland-protocols
  libsm gtest benchmark"
pacman_demo="xorg-server-xvfb openbox xterm xorg-xcalc xorg-xprop xdotool imagemagick ttf-dejavu dbus"
pacman_test="xorg-server-xvfb openbox icewm metacity trayer xterm xdotool ttf-dejavu dbus at-spi2-core
  python-dbus python-gobject python-dbusmock gtk3 gtk4 mousepad featherpad libreoffice-fresh
  sway foot wtype kwin gnome-shell xorg-xwayland xorg-xhost qt6-wayland desktop-file-utils poppler"
pacman_bench="$pacman_demo python sway kwin gnome-shell qt6-wayland"
pacman_pictures="otf-ipafont"
pacman_lint="clang cppcheck shellcheck desktop-file-utils libxml2"
pacman_package="appstream desktop-file-utils flatpak-builder"
pacman_format="clang"
pacman_fuzz="clang compiler-rt"
pacman_coverage="gcovr"

# Prints the family of this machine; nothing if it is none of them.
package_family() {
  local family
  for family in apt:apt-get dnf:dnf pacman:pacman; do
    if command -v "${family#*:}" >/dev/null; then echo "${family%%:*}"; return; fi
  done
}

# missing_packages FAMILY PACKAGE...: prints those that are not installed, one on a line.
missing_packages() {
  local family=$1; shift
  case $family in
    apt) { printf '%s\n' "$@"
           dpkg-query -W -f '${db:Status-Status} ${Package}\n' "$@" 2>/dev/null | sed -n 's/^installed //p'
           # A name that is both wanted and installed occurs twice and so is dropped; names wanted by two sets
           # were already made one.
         } | sort | uniq -u ;;
    dnf) rpm -q --whatprovides "$@" 2>/dev/null | sed -n 's/^no package provides //p' ;;
    pacman) pacman -T "$@" || true ;;
  esac
}

# packaged FAMILY PACKAGE...: prints those that this release has, according to the lists on this machine.
packaged() {
  local family=$1; shift
  case $family in
    apt) apt-cache madison "$@" 2>/dev/null | awk -F ' *[|] *' '{ sub(/^ */, "", $1); print $1 }' | sort -u ;;
    *) printf '%s\n' "$@" | sort -u ;;
  esac
}

# As root directly, otherwise through sudo. Nothing else uses sudo.
as_root() {
  if [ "$(id -u)" = 0 ]; then "$@"
  elif command -v sudo >/dev/null; then sudo "$@"
  else
    echo "dev: this needs root and there is no sudo. As root, run: $*" >&2
    return 1
  fi
}

# need SET...: installs the packages of these sets that the machine lacks and its release has; names those
# that the release does not have.
need() {
  local family set list wanted missing offered
  family=$(package_family)
  wanted=()
  for set in "$@"; do
    list=${family:-apt}_$set
    read -r -d '' -a list <<<"${!list}" || true
    wanted+=("${list[@]}")
  done
  mapfile -t wanted < <(printf '%s\n' "${wanted[@]}" | sort -u)
  if [ -z "$family" ]; then
    echo "dev: no package manager that is known here; going on with what is there (on Debian: ${wanted[*]})" >&2
    return
  fi
  mapfile -t missing < <(missing_packages "$family" "${wanted[@]}")
  [ ${#missing[@]} -gt 0 ] || return 0
  mapfile -t offered < <(packaged "$family" "${missing[@]}")
  # Lists are renewed before something is installed from them, and if they have none of the wanted packages:
  # then they were never fetched.
  if [ "$family" = apt ] && { [ ${#offered[@]} -gt 0 ] || [ -z "$(packaged apt "${wanted[@]}")" ]; }; then
    # A machine that is offline may still have the packages in its own archive.
    as_root apt-get -qq -o DPkg::Lock::Timeout=600 update || echo "dev: the package lists could not be renewed" >&2
    mapfile -t offered < <(packaged apt "${missing[@]}")
  fi
  mapfile -t missing < <(printf '%s\n' "${missing[@]}" "${offered[@]}" | sort | uniq -u)
  [ ${#missing[@]} -eq 0 ] || echo "dev: this release has no package ${missing[*]}" >&2
  [ ${#offered[@]} -gt 0 ] || return 0
  echo "dev: installing ${offered[*]}" >&2
  case $family in
    apt)
      as_root env DEBIAN_FRONTEND=noninteractive apt-get -qq -o DPkg::Lock::Timeout=600 -o Dpkg::Use-Pty=0 \
        install -y --no-install-recommends "${offered[@]}" >/dev/null ;;
    dnf) as_root dnf install -q -y --setopt=install_weak_deps=False "${offered[@]}" ;;
    pacman) as_root pacman -S --needed --noconfirm "${offered[@]}" ;;
  esac
}
