# Configures and builds one preset of the project. Sourced by ./run and ./test.

# Makes the build folder of the preset $2 for the project in the folder $1; does nothing when it is
# there.
configure() {
    local project=$1 preset=$2
    local folder=$project/build/$preset
    # A folder that was made before the project was moved is of no use here.
    if [[ -f $folder/build.ninja ]] &&
        grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$project" "$folder/CMakeCache.txt"; then
        return 0
    fi
    if command -v ccache >/dev/null; then
        export CMAKE_C_COMPILER_LAUNCHER=ccache CMAKE_CXX_COMPILER_LAUNCHER=ccache
    fi
    (cd -- "$project" && cmake --preset "$preset" --fresh --log-level=WARNING) >/dev/null ||
        fail 'La configurazione non è riuscita: il motivo è qui sopra.'
}

# Builds everything of that preset, or only the targets named after it.
build() {
    local project=$1 preset=$2
    local only=()
    (($# == 2)) || only=(--target "${@:3}")
    # One more than there are processors: now and then one waits for the disk.
    cmake --build "$project/build/$preset" --parallel "$(($(nproc) + 1))" "${only[@]}" >&2 ||
        fail 'La compilazione non è riuscita: il motivo è qui sopra.'
}
