// The library's load-time object. It is linked before the resource blocks, so its static
// initialiser runs first; it installs the German texts once the application object exists.
#include <VKD_QT_InitTranslator.h>

static VKD_QT_InitTranslator g_translator("vkd_p_dll");
