# shellcheck shell=bash
# The examples of the zip, as a user gets them: those that Wine can run are run. Sourced by check.sh.

check_examples() {
    local name
    expect "The C# example compiles with mcs" \
        mcs -r:Microsoft.CSharp -out:"$work/Host.exe" "$1/examples/csharp/Host.cs"
    expect "The Python example compiles to byte code" \
        python3 -c 'import sys; compile(open(sys.argv[1]).read(), sys.argv[1], "exec")' "$1/examples/python/host.py"
    for name in early_bound late_bound registration_free; do
        expect "The C++ example $name compiles without a warning" compile_example "$1" $name
    done
    expect "Without registration, scripts and programs cannot create the class" no_example_runs "$1"
    cp "$1/x64/Telvix.dll" "$1/x64/Telvix.manifest" "$work/"
    expect "With the manifest beside it, a program creates the class without any registration" \
        says "Created without registration; the font is Arial." run "$work/registration_free.exe"
    mv "$work/Telvix.manifest" "$work/Other.manifest"
    expect "Without the manifest it does not" \
        fails says "Created without registration; the font is Arial." run "$work/registration_free.exe"
}

# compile_example FOLDER NAME
compile_example() {
    local log
    log=$(x86_64-w64-mingw32-g++-posix -std=c++20 -Wall -Wextra -Werror -static -I"$1/include" \
        "$1/examples/cpp/$2.cpp" -o "$work/$2.exe" -lole32 -loleaut32 -luuid 2>&1) || { echo "$log"; return 1; }
}

# says TEXT COMMAND...: the command prints exactly this line.
says() {
    local text=$1 output
    shift
    output=$("$@" 2>/dev/null </dev/null | tr -d '\r')
    printf '%s\n' "$output"
    [ "$output" = "$text" ]
}

run() {
    timeout 60 wine "$@"
}

script() {
    run cscript //nologo "$(winepath -w "$1" 2>/dev/null)"
}

fails() { ! "$@"; }

no_example_runs() {
    fails says "Accepted." script "$1/examples/vbscript/host.vbs" &&
        fails says "Accepted." script "$1/examples/jscript/host.js" &&
        says "Error 0x800401F3" run "$work/late_bound.exe" && says "Error 0x800401F3" run "$work/early_bound.exe"
}

# run_examples FOLDER: the late-bound and early-bound hosts, over what is installed.
run_examples() {
    says "Accepted." script "$1/examples/vbscript/host.vbs" && says "Accepted." script "$1/examples/jscript/host.js" &&
        says "Accepted." run "$work/late_bound.exe" && says "Accepted." run "$work/early_bound.exe"
}
