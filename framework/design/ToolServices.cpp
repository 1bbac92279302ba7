#include "framework/design/ToolServices.h"

constinit TIToolServices* ToolServices = nullptr;
