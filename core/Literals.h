// Literal form: property values as form text files write them, with quoted runs
// and "#" codes for the bytes below 32.
//     OK                  'OK'
//     It's                'It''s'
//     Line1 CR LF Line2   'Line1'#13#10'Line2'
//     (empty)             ''
#pragma once

#include <string>
#include <string_view>

// Turns a plain text into its literal form. Bytes from 32 to 255 stay as they
// are, apostrophes are doubled.
void ConvertToLiterals(std::string& S);

// Turns a literal form into plain text. Bytes outside quotes are kept: a bare
// word such as alNone passes unchanged. A "#" outside quotes takes the digits
// among the three bytes behind it, each byte looked at by itself, and replaces
// as many bytes as there were digits by the one whose code is the number modulo
// 256. So #13#10 is CR LF and #9'A' is TAB A, but #9#10 is "[10" (code 91).
// Throws EConvertError when there is no digit; S is unspecified then.
void ConvertFromLiterals(std::string& S);

// The same on copies.
std::string ToLiterals(std::string_view Text);
std::string FromLiterals(std::string_view Text);
// Result := FromLiterals(Text), for callers that keep a buffer.
void AssignFromLiterals(std::string& Result, std::string_view Text);

// Appends the literal form of Text.
void AppendLiterals(std::string& Result, std::string_view Text);
