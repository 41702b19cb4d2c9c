# Sourced by ./test: how our sources are looked at. Needs a configured build/dev for clang-tidy.

cpp_sources() { git ls-files --cached --others --exclude-standard -- '*.h' '*.cpp'; }

# What stands changed in the work tree, and what the last commit brought.
changed_sources() {
    {
        git diff --name-only HEAD
        git ls-files --others --exclude-standard
        git diff --name-only HEAD~1 HEAD 2>/dev/null || true
    } | sort -u | while IFS= read -r file; do
        if [ -e "$file" ]; then printf '%s\n' "$file"; fi
    done
}

lint_text() {
    cpp_sources | xargs -d '\n' clang-format-16 --dry-run --Werror
    npx --no-install eslint .
    npx --no-install stylelint --allow-empty-input 'pages/**/*.css' 'zebsim/pages/**/*.css'
}

# clang-tidy of the files named on standard input that the build compiles. Clang does not know every flag that g++ does.
tidy() {
    mkdir -p build/tidy
    sed 's/ -fno-gnu-unique//g' build/dev/compile_commands.json >build/tidy/compile_commands.json
    while IFS= read -r file; do
        if grep -qF "\"file\": \"$PWD/$file\"" build/tidy/compile_commands.json; then printf '%s\n' "$file"; fi
    done | xargs -r -d '\n' -n 1 -P 2 clang-tidy --quiet -p build/tidy --extra-arg=-Wno-unknown-warning-option
}

lint_changed() {
    lint_text
    changed_sources | { grep '\.cpp$' || true; } | tidy
}

lint_all() {
    lint_text
    cpp_sources | grep '\.cpp$' | tidy
}
