#include "framework/rtl/FormatVars.h"

std::string DecimalSeparator = ".";
std::string ThousandSeparator = ",";
std::string CurrencyString = "$";
int CurrencyDecimals = 2;
int CurrencyFormat = 0;
int NegCurrFormat = 0;
std::string DateSeparator = "/";
std::string ShortDateFormat = "m/d/yy";
std::string LongDateFormat = "mmmm d, yyyy";
std::string TimeSeparator = ":";
std::string TimeAMString = "am";
std::string TimePMString = "pm";
std::string ShortTimeFormat = "h:mm AMPM";
std::string LongTimeFormat = "h:mm:ss AMPM";
TNameTable<7> ShortDayNames("Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat");
TNameTable<7> LongDayNames("Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday");
TNameTable<12> ShortMonthNames("Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov",
                               "Dec");
TNameTable<12> LongMonthNames("January", "February", "March", "April", "May", "June", "July", "August",
                              "September", "October", "November", "December");
TSysLocale SysLocale;
