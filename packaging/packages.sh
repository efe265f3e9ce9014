# For ./run and ./test: makes sure that Debian packages are there. Asks nothing when all are.

# need_packages PACKAGE...: installs what is missing, or says what to do and returns 1.
need_packages() {
    if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
        echo "This is no Debian system, so nothing is installed here. Needed are what Debian calls: $*" >&2
        return 0
    fi
    local package missing=() as_root=()
    for package in "$@"; do
        dpkg -s "$package" 2>/dev/null | grep -q '^Status: install ok installed' || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0

    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null; then
            echo "These Debian packages are missing: ${missing[*]}" >&2
            echo "Install them as root:  apt-get install ${missing[*]}" >&2
            return 1
        fi
        as_root=(sudo)
    fi
    echo "Installing Debian packages: ${missing[*]}"
    local log
    log=$(mktemp)
    "${as_root[@]}" apt-get update -qq >"$log" 2>&1 </dev/null ||
        echo "The package lists could not be brought up to date; going on." >&2
    if ! "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >>"$log" 2>&1 </dev/null; then
        tail -n 20 "$log" >&2
        rm -f "$log"
        echo "The Debian packages could not be installed. Try it by hand:  apt-get install ${missing[*]}" >&2
        return 1
    fi
    rm -f "$log"
}

# What the program itself is built from and runs with.
program_packages=(cmake g++ ninja-build qt6-base-dev libgl1-mesa-dev nlohmann-json3-dev libcli11-dev libdxflib-dev
    fonts-liberation)
# A screen for a machine that has none.
screen_packages=(xvfb xauth)
# What the tests need besides.
test_packages=(poppler-utils python3 libgtest-dev libbenchmark-dev clang clang-format clang-tidy libclang-rt-14-dev
    python3-ezdxf librsvg2-bin at-spi2-core dbus-daemon gir1.2-atspi-2.0 python3-gi
    python3-clang-14 llvm-14
    xdotool x11-utils desktop-file-utils appstream shared-mime-info mandoc lintian)
# Runs the drilling programs of the tests. Large, so that the tests do without where it can't be installed.
interpreter_packages=(linuxcnc-uspace)
