#include "services/rtf/CodePages.h"
