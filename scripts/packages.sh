# The Debian packages that each kind of build needs.
native_packages=(g++ cmake ninja-build pkg-config ccache libcairo2-dev libpango1.0-dev libicu-dev libcli11-dev
    nlohmann-json3-dev googletest fontconfig fonts-dejavu-core fonts-liberation fonts-vlgothic)
windows_packages=(g++-mingw-w64-x86-64-posix wine wine64 xvfb xauth fonts-dejavu-extra fonts-droid-fallback
    cups-daemon cups-client)
bench_packages=(libbenchmark-dev libboost-locale-dev)
