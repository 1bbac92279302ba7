#include "platform/portable/LocaleTable.h"

#include <algorithm>
#include <iterator>

#include <strings.h>

namespace {

constexpr TLocaleRow Rows[] = {
    {0x0436, "af-ZA", "AFK", 1252, 850, ";", nullptr},
    {0x045E, "am-ET", "AMH", 0, 1, ";", nullptr},
    {0x3801, "ar-AE", "ARU", 1256, 720, ";", nullptr},
    {0x3C01, "ar-BH", "ARH", 1256, 720, ";", nullptr},
    {0x1401, "ar-DZ", "ARG", 1256, 720, ";", nullptr},
    {0x0C01, "ar-EG", "ARE", 1256, 720, ";", nullptr},
    {0x0801, "ar-IQ", "ARI", 1256, 720, ";", nullptr},
    {0x2C01, "ar-JO", "ARJ", 1256, 720, ";", nullptr},
    {0x3401, "ar-KW", "ARK", 1256, 720, ";", nullptr},
    {0x3001, "ar-LB", "ARB", 1256, 720, ";", nullptr},
    {0x1001, "ar-LY", "ARL", 1256, 720, ";", nullptr},
    {0x1801, "ar-MA", "ARM", 1256, 720, ";", nullptr},
    {0x2001, "ar-OM", "ARO", 1256, 720, ";", nullptr},
    {0x4001, "ar-QA", "ARQ", 1256, 720, ";", nullptr},
    {0x0401, "ar-SA", "ARA", 1256, 720, ";", nullptr},
    {0x2801, "ar-SY", "ARS", 1256, 720, ";", nullptr},
    {0x1C01, "ar-TN", "ART", 1256, 720, ";", nullptr},
    {0x2401, "ar-YE", "ARY", 1256, 720, ";", nullptr},
    {0x044D, "as-IN", "ASM", 0, 1, ",", nullptr},
    {0x082C, "az-Cyrl-AZ", "AZC", 1251, 866, ";", nullptr},
    {0x042C, "az-Latn-AZ", "AZE", 1254, 857, ";", nullptr},
    {0x0423, "be-BY", "BEL", 1251, 866, ";", nullptr},
    {0x0402, "bg-BG", "BGR", 1251, 866, ";", nullptr},
    {0x0845, "bn-BD", "BNB", 0, 1, ",", nullptr},
    {0x0445, "bn-IN", "BNG", 0, 1, ",", nullptr},
    {0x0451, "bo-CN", "BOB", 0, 1, ",", nullptr},
    {0x047E, "br-FR", "BRE", 1252, 850, ";", nullptr},
    {0x201A, "bs-Cyrl-BA", "BSC", 1251, 855, ";", nullptr},
    {0x141A, "bs-Latn-BA", "BSB", 1250, 852, ";", nullptr},
    {0x0403, "ca-ES", "CAT", 1252, 850, ";", nullptr},
    {0x0803, "ca-ES-valencia", "VAL", 1252, 850, ";", nullptr},
    {0x045C, "chr-Cher-US", "CRE", 0, 1, ",", nullptr},
    {0x0405, "cs-CZ", "CSY", 1250, 852, ";", nullptr},
    {0x0452, "cy-GB", "CYM", 1252, 850, ";", nullptr},
    {0x0406, "da-DK", "DAN", 1252, 850, ";", nullptr},
    {0x0C07, "de-AT", "DEA", 1252, 850, ";", nullptr},
    {0x0807, "de-CH", "DES", 1252, 850, ";", nullptr},
    {0x0407, "de-DE", "DEU", 1252, 850, ";", nullptr},
    {0x1407, "de-LI", "DEC", 1252, 850, ";", nullptr},
    {0x1007, "de-LU", "DEL", 1252, 850, ";", nullptr},
    {0x082E, "dsb-DE", "DSB", 1252, 850, ";", nullptr},
    {0x0C51, "dz-BT", "ZZZ", 0, 1, ";", nullptr},
    {0x0408, "el-GR", "ELL", 1253, 737, ";", nullptr},
    {0x2409, "en-029", "ENB", 1252, 850, ",", nullptr},
    {0x4C09, "en-AE", "ZZZ", 0, 1, ",", nullptr},
    {0x0C09, "en-AU", "ENA", 1252, 850, ",", nullptr},
    {0x2809, "en-BZ", "ENL", 1252, 850, ",", nullptr},
    {0x1009, "en-CA", "ENC", 1252, 850, ",", nullptr},
    {0x0809, "en-GB", "ENG", 1252, 850, ",", nullptr},
    {0x3C09, "en-HK", "ENH", 1252, 850, ",", nullptr},
    {0x3809, "en-ID", "ZZZ", 1252, 850, ",", nullptr},
    {0x1809, "en-IE", "ENI", 1252, 850, ",", nullptr},
    {0x4009, "en-IN", "ENN", 1252, 437, ",", nullptr},
    {0x2009, "en-JM", "ENJ", 1252, 850, ",", nullptr},
    {0x4409, "en-MY", "ENM", 1252, 437, ",", nullptr},
    {0x1409, "en-NZ", "ENZ", 1252, 850, ",", nullptr},
    {0x3409, "en-PH", "ENP", 1252, 437, ",", nullptr},
    {0x4809, "en-SG", "ENE", 1252, 437, ",", nullptr},
    {0x2C09, "en-TT", "ENT", 1252, 850, ",", nullptr},
    {0x0409, "en-US", "ENU", 1252, 437, ",", nullptr},
    {0x1C09, "en-ZA", "ENS", 1252, 437, ",", nullptr},
    {0x3009, "en-ZW", "ENW", 1252, 437, ",", nullptr},
    {0x580A, "es-419", "ESJ", 1252, 850, ";", nullptr},
    {0x2C0A, "es-AR", "ESS", 1252, 850, ";", nullptr},
    {0x400A, "es-BO", "ESB", 1252, 850, ";", nullptr},
    {0x340A, "es-CL", "ESL", 1252, 850, ";", nullptr},
    {0x240A, "es-CO", "ESO", 1252, 850, ";", nullptr},
    {0x140A, "es-CR", "ESC", 1252, 850, ";", nullptr},
    {0x5C0A, "es-CU", "ESK", 1252, 850, ";", nullptr},
    {0x1C0A, "es-DO", "ESD", 1252, 850, ";", nullptr},
    {0x300A, "es-EC", "ESF", 1252, 850, ";", nullptr},
    {0x0C0A, "es-ES", "ESN", 1252, 850, ";", nullptr},
    {0x040A, "es-ES_tradnl", "ESP", 1252, 850, ";", "es_ES"},
    {0x100A, "es-GT", "ESG", 1252, 850, ";", nullptr},
    {0x480A, "es-HN", "ESH", 1252, 850, ";", nullptr},
    {0x080A, "es-MX", "ESM", 1252, 850, ";", nullptr},
    {0x4C0A, "es-NI", "ESI", 1252, 850, ";", nullptr},
    {0x180A, "es-PA", "ESA", 1252, 850, ";", nullptr},
    {0x280A, "es-PE", "ESR", 1252, 850, ";", nullptr},
    {0x500A, "es-PR", "ESU", 1252, 850, ";", nullptr},
    {0x3C0A, "es-PY", "ESZ", 1252, 850, ";", nullptr},
    {0x440A, "es-SV", "ESE", 1252, 850, ";", nullptr},
    {0x540A, "es-US", "EST", 1252, 850, ";", nullptr},
    {0x380A, "es-UY", "ESY", 1252, 850, ";", nullptr},
    {0x200A, "es-VE", "ESV", 1252, 850, ";", nullptr},
    {0x0425, "et-EE", "ETI", 1257, 775, ";", nullptr},
    {0x042D, "eu-ES", "EUQ", 1252, 850, ";", nullptr},
    {0x0429, "fa-IR", "FAR", 1256, 720, "؛", nullptr},
    {0x0467, "ff-Latn-NG", "ZZZ", 1252, 850, ";", nullptr},
    {0x0867, "ff-Latn-SN", "FUL", 1252, 850, ";", nullptr},
    {0x040B, "fi-FI", "FIN", 1252, 850, ";", nullptr},
    {0x0464, "fil-PH", "FPO", 1252, 437, ";", nullptr},
    {0x0438, "fo-FO", "FOS", 1252, 850, ";", nullptr},
    {0x1C0C, "fr-029", "ZZZ", 1252, 850, ";", nullptr},
    {0x080C, "fr-BE", "FRB", 1252, 850, ";", nullptr},
    {0x0C0C, "fr-CA", "FRC", 1252, 850, ";", nullptr},
    {0x240C, "fr-CD", "FRD", 1252, 850, ";", nullptr},
    {0x100C, "fr-CH", "FRS", 1252, 850, ";", nullptr},
    {0x300C, "fr-CI", "FRI", 1252, 850, ";", nullptr},
    {0x2C0C, "fr-CM", "FRE", 1252, 850, ";", nullptr},
    {0x040C, "fr-FR", "FRA", 1252, 850, ";", nullptr},
    {0x3C0C, "fr-HT", "FRH", 1252, 850, ";", nullptr},
    {0x140C, "fr-LU", "FRL", 1252, 850, ";", nullptr},
    {0x380C, "fr-MA", "FRO", 1252, 850, ";", nullptr},
    {0x180C, "fr-MC", "FRM", 1252, 850, ";", nullptr},
    {0x340C, "fr-ML", "FRF", 1252, 850, ";", nullptr},
    {0x200C, "fr-RE", "FRR", 1252, 850, ";", nullptr},
    {0x280C, "fr-SN", "FRN", 1252, 850, ";", nullptr},
    {0x0462, "fy-NL", "FYN", 1252, 850, ";", nullptr},
    {0x083C, "ga-IE", "IRE", 1252, 850, ";", nullptr},
    {0x0491, "gd-GB", "GLA", 1252, 850, ";", nullptr},
    {0x0456, "gl-ES", "GLC", 1252, 850, ";", nullptr},
    {0x0484, "gsw-FR", "GSW", 1252, 850, ";", nullptr},
    {0x0447, "gu-IN", "GUJ", 0, 1, ",", nullptr},
    {0x0468, "ha-Latn-NG", "HAU", 1252, 437, ";", nullptr},
    {0x0475, "haw-US", "HAW", 1252, 437, ";", nullptr},
    {0x040D, "he-IL", "HEB", 1255, 862, ",", nullptr},
    {0x0439, "hi-IN", "HIN", 0, 1, ",", nullptr},
    {0x101A, "hr-BA", "HRB", 1250, 852, ";", nullptr},
    {0x041A, "hr-HR", "HRV", 1250, 852, ";", nullptr},
    {0x042E, "hsb-DE", "HSB", 1252, 850, ";", nullptr},
    {0x040E, "hu-HU", "HUN", 1250, 852, ";", nullptr},
    {0x042B, "hy-AM", "HYE", 0, 1, ",", nullptr},
    {0x0421, "id-ID", "IND", 1252, 850, ";", nullptr},
    {0x0470, "ig-NG", "IBO", 1252, 437, ";", nullptr},
    {0x0478, "ii-CN", "III", 0, 1, ";", nullptr},
    {0x040F, "is-IS", "ISL", 1252, 850, ";", nullptr},
    {0x0810, "it-CH", "ITS", 1252, 850, ";", nullptr},
    {0x0410, "it-IT", "ITA", 1252, 850, ";", nullptr},
    {0x0411, "ja-JP", "JPN", 932, 932, ",", nullptr},
    {0x0437, "ka-GE", "KAT", 0, 1, ";", nullptr},
    {0x043F, "kk-KZ", "KKZ", 0, 1, ";", nullptr},
    {0x046F, "kl-GL", "KAL", 1252, 850, ";", nullptr},
    {0x0453, "km-KH", "KHM", 0, 1, ",", nullptr},
    {0x044B, "kn-IN", "KDI", 0, 1, ",", nullptr},
    {0x0412, "ko-KR", "KOR", 949, 949, ",", nullptr},
    {0x0457, "kok-IN", "KNK", 0, 1, ",", nullptr},
    {0x0860, "ks-Deva-IN", "ZZZ", 0, 1, ",", nullptr},
    {0x0492, "ku-Arab-IQ", "KUR", 1256, 720, "؛", "ckb_IQ"},
    {0x0440, "ky-KG", "KYR", 1251, 866, ";", nullptr},
    {0x046E, "lb-LU", "LBX", 1252, 850, ";", nullptr},
    {0x0454, "lo-LA", "LAO", 0, 1, ";", nullptr},
    {0x0427, "lt-LT", "LTH", 1257, 775, ";", nullptr},
    {0x0426, "lv-LV", "LVI", 1257, 775, ";", nullptr},
    {0x0481, "mi-NZ", "MRI", 0, 1, ",", nullptr},
    {0x042F, "mk-MK", "MKI", 1251, 866, ";", nullptr},
    {0x044C, "ml-IN", "MYM", 0, 1, ";", nullptr},
    {0x0450, "mn-MN", "MNN", 1251, 866, ";", nullptr},
    {0x0458, "mni-IN", "ZZZ", 0, 1, ",", "mni_Beng_IN"},
    {0x044E, "mr-IN", "MAR", 0, 1, ",", nullptr},
    {0x083E, "ms-BN", "MSB", 1252, 850, ";", nullptr},
    {0x043E, "ms-MY", "MSL", 1252, 850, ";", nullptr},
    {0x043A, "mt-MT", "MLT", 0, 1, ";", nullptr},
    {0x0455, "my-MM", "MYA", 0, 1, ";", nullptr},
    {0x0414, "nb-NO", "NOR", 1252, 850, ";", nullptr},
    {0x0861, "ne-IN", "NEI", 0, 1, ",", nullptr},
    {0x0461, "ne-NP", "NEP", 0, 1, ",", nullptr},
    {0x0813, "nl-BE", "NLB", 1252, 850, ";", nullptr},
    {0x0413, "nl-NL", "NLD", 1252, 850, ";", nullptr},
    {0x0814, "nn-NO", "NON", 1252, 850, ";", nullptr},
    {0x0472, "om-ET", "ORM", 0, 1, ";", nullptr},
    {0x0448, "or-IN", "ORI", 0, 1, ",", nullptr},
    {0x0846, "pa-Arab-PK", "PAP", 1256, 720, ";", nullptr},
    {0x0446, "pa-IN", "PAN", 0, 1, ",", "pa_Guru_IN"},
    {0x0415, "pl-PL", "PLK", 1250, 852, ";", nullptr},
    {0x048C, "prs-AF", "PRS", 1256, 720, ";", "fa_AF"},
    {0x0463, "ps-AF", "PAS", 0, 1, ";", nullptr},
    {0x0416, "pt-BR", "PTB", 1252, 850, ";", nullptr},
    {0x0816, "pt-PT", "PTG", 1252, 850, ";", nullptr},
    {0x046B, "quz-BO", "QUZ", 1252, 850, ",", "qu_BO"},
    {0x086B, "quz-EC", "QUZ", 1252, 850, ",", "qu_EC"},
    {0x0C6B, "quz-PE", "QUZ", 1252, 850, ",", "qu_PE"},
    {0x0417, "rm-CH", "RMC", 1252, 850, ";", nullptr},
    {0x0818, "ro-MD", "ROD", 1250, 852, ";", nullptr},
    {0x0418, "ro-RO", "ROM", 1250, 852, ";", nullptr},
    {0x0819, "ru-MD", "RUM", 1251, 866, ";", nullptr},
    {0x0419, "ru-RU", "RUS", 1251, 866, ";", nullptr},
    {0x0487, "rw-RW", "KIN", 1252, 437, ";", nullptr},
    {0x044F, "sa-IN", "SAN", 0, 1, ",", nullptr},
    {0x0485, "sah-RU", "SAH", 1251, 866, ";", nullptr},
    {0x0859, "sd-Arab-PK", "SIP", 1256, 720, ";", nullptr},
    {0x0459, "sd-Deva-IN", "ZZZ", 0, 1, ",", nullptr},
    {0x0C3B, "se-FI", "SMG", 1252, 850, ";", nullptr},
    {0x043B, "se-NO", "SME", 1252, 850, ";", nullptr},
    {0x083B, "se-SE", "SMF", 1252, 850, ";", nullptr},
    {0x045B, "si-LK", "SIN", 0, 1, ";", nullptr},
    {0x041B, "sk-SK", "SKY", 1250, 852, ";", nullptr},
    {0x0424, "sl-SI", "SLV", 1250, 852, ";", nullptr},
    {0x243B, "smn-FI", "SMN", 1252, 850, ";", nullptr},
    {0x0477, "so-SO", "SOM", 0, 1, ";", nullptr},
    {0x041C, "sq-AL", "SQI", 1250, 852, ";", nullptr},
    {0x1C1A, "sr-Cyrl-BA", "SRN", 1251, 855, ";", nullptr},
    {0x301A, "sr-Cyrl-ME", "SRQ", 1251, 855, ";", nullptr},
    {0x281A, "sr-Cyrl-RS", "SRO", 1251, 855, ";", nullptr},
    {0x181A, "sr-Latn-BA", "SRS", 1250, 852, ";", nullptr},
    {0x2C1A, "sr-Latn-ME", "SRP", 1250, 852, ";", nullptr},
    {0x241A, "sr-Latn-RS", "SRM", 1250, 852, ";", nullptr},
    {0x081D, "sv-FI", "SVF", 1252, 850, ";", nullptr},
    {0x041D, "sv-SE", "SVE", 1252, 850, ";", nullptr},
    {0x0441, "sw-KE", "SWK", 1252, 437, ";", nullptr},
    {0x0449, "ta-IN", "TAI", 0, 1, ",", nullptr},
    {0x0849, "ta-LK", "TAM", 0, 1, ",", nullptr},
    {0x044A, "te-IN", "TEL", 0, 1, ";", nullptr},
    {0x0428, "tg-Cyrl-TJ", "TAJ", 1251, 866, ";", nullptr},
    {0x041E, "th-TH", "THA", 874, 874, ",", nullptr},
    {0x0873, "ti-ER", "TIR", 0, 1, ";", nullptr},
    {0x0473, "ti-ET", "TIE", 0, 1, ";", nullptr},
    {0x0442, "tk-TM", "TUK", 1250, 852, ";", nullptr},
    {0x041F, "tr-TR", "TRK", 1254, 857, ";", nullptr},
    {0x0444, "tt-RU", "TTT", 1251, 866, ";", nullptr},
    {0x085F, "tzm-Latn-DZ", "TZA", 1252, 850, ";", nullptr},
    {0x0480, "ug-CN", "UIG", 1256, 720, ",", nullptr},
    {0x0422, "uk-UA", "UKR", 1251, 866, ";", nullptr},
    {0x0820, "ur-IN", "URI", 1256, 720, ";", nullptr},
    {0x0420, "ur-PK", "URD", 1256, 720, ";", nullptr},
    {0x0843, "uz-Cyrl-UZ", "UZC", 1251, 866, ";", nullptr},
    {0x0443, "uz-Latn-UZ", "UZB", 1254, 857, ";", nullptr},
    {0x042A, "vi-VN", "VIT", 1258, 1258, ",", nullptr},
    {0x0488, "wo-SN", "WOL", 1252, 850, ";", nullptr},
    {0x0434, "xh-ZA", "XHO", 1252, 850, ";", nullptr},
    {0x043D, "yi-001", "ZZZ", 0, 1, ";", nullptr},
    {0x046A, "yo-NG", "YOR", 1252, 437, ";", nullptr},
    {0x0804, "zh-CN", "CHS", 936, 936, ",", "zh_Hans_CN"},
    {0x0C04, "zh-HK", "ZHH", 950, 950, ",", "zh_Hant_HK"},
    {0x1404, "zh-MO", "ZHM", 950, 950, ",", "zh_Hant_MO"},
    {0x1004, "zh-SG", "ZHI", 936, 936, ",", "zh_Hans_SG"},
    {0x0404, "zh-TW", "CHT", 950, 950, ",", "zh_Hant_TW"},
    {0x0435, "zu-ZA", "ZUL", 1252, 850, ";", nullptr},
};

constexpr TLocaleRow Invariant = {0x007F, "", "IVL", 1252, 437, ",", "en_US"};

constexpr TLocaleSort Sorts[] = {
    {0x00010407, "de-DE_phoneb"}, {0x0001040E, "hu-HU_technl"}, {0x00040411, "ja-JP_radstr"},
    {0x00010437, "ka-GE_modern"}, {0x0001007F, "x-IV_mathan"},  {0x00050804, "zh-CN_phoneb"},
    {0x00020804, "zh-CN_stroke"}, {0x00040C04, "zh-HK_radstr"}, {0x00041404, "zh-MO_radstr"},
    {0x00021404, "zh-MO_stroke"}, {0x00051004, "zh-SG_phoneb"}, {0x00021004, "zh-SG_stroke"},
    {0x00030404, "zh-TW_pronun"}, {0x00040404, "zh-TW_radstr"},
};

// Languages stand for the locale with sublanguage 1 except for these; the
// numbers from 0x6000 on are older ones.
constexpr LCID Aliases[][2] = {
    {0x0004, 0x0804}, {0x000A, 0x0C0A}, {0x003C, 0x083C}, {0x0045, 0x0845}, {0x0059, 0x0859},
    {0x005F, 0x085F}, {0x0067, 0x0867}, {0x0073, 0x0873}, {0x641A, 0x201A}, {0x681A, 0x141A},
    {0x6C1A, 0x281A}, {0x701A, 0x241A}, {0x703B, 0x243B}, {0x742C, 0x082C}, {0x7804, 0x0804},
    {0x7814, 0x0814}, {0x781A, 0x141A}, {0x782C, 0x042C}, {0x7843, 0x0843}, {0x7850, 0x0450},
    {0x7C04, 0x0C04}, {0x7C14, 0x0414}, {0x7C1A, 0x241A}, {0x7C28, 0x0428}, {0x7C2E, 0x082E},
    {0x7C43, 0x0443}, {0x7C46, 0x0846}, {0x7C59, 0x0859}, {0x7C5C, 0x045C}, {0x7C5F, 0x085F},
    {0x7C67, 0x0867}, {0x7C68, 0x0468}, {0x7C92, 0x0492},
};

} // namespace

std::span<const TLocaleRow> LocaleRows()
{
    return Rows;
}

std::span<const TLocaleSort> LocaleSorts()
{
    return Sorts;
}

const TLocaleRow* FindLocale(LCID Locale)
{
    const auto IsSort = [&](const TLocaleSort& Sort) { return Sort.Id == Locale; };
    if (Locale > 0xFFFF && std::none_of(std::begin(Sorts), std::end(Sorts), IsSort))
        return nullptr;
    const LCID Id = Locale & 0xFFFF;
    if (Id == Invariant.Id)
        return &Invariant;
    const auto* const Row =
        std::find_if(std::begin(Rows), std::end(Rows), [&](const auto& Each) { return Each.Id == Id; });
    return Row != std::end(Rows) ? Row : nullptr;
}

const TLocaleRow* FindLocaleName(const std::string& Name)
{
    const auto HasName = [&](const TLocaleRow& Row) { return strcasecmp(Row.Name, Name.c_str()) == 0; };
    const auto* const Row = std::find_if(std::begin(Rows), std::end(Rows), HasName);
    return Row != std::end(Rows) ? Row : nullptr;
}

LCID LocaleAlias(LCID Locale)
{
    for (const auto& [Alias, Target] : Aliases)
        if (Alias == Locale)
            return Target;
    const bool IsLanguage = Locale > 0 && Locale < 0x400;
    return IsLanguage && FindLocale(Locale | 0x400) ? Locale | 0x400 : 0;
}

std::string IcuName(const TLocaleRow& Row)
{
    std::string Result = Row.IcuName ? Row.IcuName : Row.Name;
    std::replace(Result.begin(), Result.end(), '-', '_');
    return Result;
}
