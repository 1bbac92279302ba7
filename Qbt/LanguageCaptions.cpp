#include "Qbt/LanguageCaptions.h"

#include <algorithm>
#include <iterator>

namespace {

// One language a row: Yes, No, OK, Cancel, Help, Abort, Retry, Ignore, All.
//
// Odd on purpose, since applications and dictionaries know them so: Chinese is
// English, Catalan has two English words, Norwegian says Avbryt twice, the Russian
// OK is Cyrillic, Italian has "? " for help. Three Japanese captions are what the
// bytes CD 82 A2, A2 20 and 7C 20 CD D9 CC DF of old are in code page 932.
//
// clang-format off
constexpr TLanguageCaptions Table[] = {
    {lnArabic, "نعم", "لا", "موافق", "إلغاء الأمر", "تعليمات", "إحباط", "إعادة المحاولة", "تجاهل", "الكل"},
    {lnCatalan, "Sí", "No", "D'acord", "Cancel·la", "Ajuda", "Abort", "Retry", "Omet", "Tot"},
    {lnChinese, "Yes", "No", "OK", "Cancel", "Help", "Abort", "Retry", "Ignore", "All"},
    {lnCzech, "Ano", "Ne", "OK", "Storno", "Nápověda", "Přerušit", "Znovu", "Ignorovat", "Vše"},
    {lnDanish, "Ja", "Nej", "OK", "Annuller", "Hjælp", "Afbryd", "Forsøg igen", "Ignorer", "Alle"},
    {lnDutch, "Ja", "Nee", "OK", "Annuleren", "Help", "Afbreken", "Nogmaals", "Negeren", "Alles"},
    {lnEnglish, "Yes", "No", "OK", "Cancel", "Help", "Abort", "Retry", "Ignore", "All"},
    {lnFinnish, "Kyllä", "Ei", "OK", "Peruuta", "Ohje", "Keskeytä", "Yritä uudelleen", "Ohita", "Kaikki"},
    {lnFrench, "Oui", "Non", "OK", "Annuler", "Aide", "Abandon", "Réessayer", "Ignorer", "Tout"},
    {lnGerman, "Ja", "Nein", "OK", "Abbrechen", "Hilfe", "Abbruch", "Wiederholen", "Ignorieren", "Alles"},
    {lnGreek, "Ναι", "Όχι", "OK", "Άκυρο", "Βοήθεια", "Ματαίωση", "Επανάληψη", "Παράβλεψη", "Όλα"},
    {lnHebrew, "כן", "לא", "אישור", "ביטול", "עזרה", "בטל", "נסה שנית", "התעלם", "הכל"},
    {lnHungary, "Igen", "Nem", "OK", "Mégse", "Súgó", "Leállítás", "Újra", "Mellőzés", "Minden"},
    {lnItalian, "Sì", "No", "OK", "Annulla", "? ", "Termina", "Riprova", "Ignora", "Tutto"},
    {lnJapan, "ﾍい", "｢ ", "OK", "ｷｬﾝｾﾙ", "| ﾍﾙﾌﾟ", "中止", "再試行", "無視", "すべて"},
    {lnKorean, "예", "아니오", "확인", "취소", "도움말", "중단", "재시도", "무시", "전체"},
    {lnNorway, "Ja", "Nei", "OK", "Avbryt", "Hjelp", "Avbryt", "Prøv på nytt", "Ignorer", "Alt"},
    {lnPolish, "Tak", "Nie", "OK", "Anuluj", "Pomoc", "Przerwij", "Ponów", "Zignoruj", "Wszystkie"},
    {lnRussian, "Да", "Нет", "ОК", "Отмена", "Справка", "Прервать", "Повторить", "Пропустить", "всех"},
    {lnSlovak, "Áno", "Nie", "OK", "Zrušiť", "Pomocník", "Prerušiť", "Znova", "Ignorovať", "Všetko"},
    {lnSlovenia, "Da", "Ne", "V redu", "Prekliči", "Pomoč", "Prekini", "Ponovi", "Prezri", "Vse"},
    {lnSpanish, "Sí", "No", "Aceptar", "Cancelar", "Ayuda", "Anular", "Reintentar", "Omitir", "Todo"},
    {lnSwedish, "Ja", "Nej", "OK", "Avbryt", "Hjälp", "Avsluta", "Försök igen", "Ignorera", "Alla"},
    {lnTaiwanese, "是", "否", "確定", "取消", "說明", "放棄", "重試", "略過", "所有"},
    {lnTurkish, "Evet", "Hayır", "Tamam", "İptal", "Yardım", "Durdur", "Yeniden Dene", "Yoksay", "Tümü"},
};
// clang-format on

} // namespace

const TLanguageCaptions* FindLanguageCaptions(TLangName Language)
{
    const auto* const Row =
        std::find_if(std::begin(Table), std::end(Table),
                     [=](const TLanguageCaptions& Each) { return Each.Language == Language; });
    return Row == std::end(Table) ? nullptr : Row;
}
