#!/bin/sed -f
# A comment of our headers as one of Doxygen's. The first one of a file is the file's.
1s|^/\* |/** \\file\n * |
2,$s|^\( *\)/\* |\1/** |
# Doxygen 1.9.8 takes this member for the beginning of a module.
s|\(HMODULE module\) = nullptr;|\1{};|
