// Upper and lower case of single characters, the same on every machine.
#pragma once

// One character for one: sharp s stays as it is in upper case, and nothing
// depends on the language (the Turkish dotless i has I as its upper case).
char32_t UpperCharacter(char32_t Code);
char32_t LowerCharacter(char32_t Code);

// The same answer for all characters that differ in case only, final and long
// forms of letters included (both Greek small sigmas).
char32_t FoldCharacter(char32_t Code);
