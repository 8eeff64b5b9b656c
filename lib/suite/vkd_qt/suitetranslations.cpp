// The German texts of the suite's widget layers (vkd_qt, vkd_h, vkd_t), installed for the
// process once its application object exists.
#include "VKD_QT_InitTranslator.h"

static VKD_QT_InitTranslator g_suiteTranslator("vkd_suite");
