#pragma once

#include <VKD_QT_InitTranslator.h>
#include <vkd_q.h>

#include <QPixmap>

// The picture for the language of the desktop. QPixmap shares loaded files through the
// pixmap cache, so this gives the same cacheKey() as a pixmap loaded from the language form.
#define GET_FILENAME_WITH_LANG(name) vkd_qt_getFileNameWithLang((name), vkd_lib_getvalue(kSettingLanguage))
#define GET_PIXMAP_WITH_LANG(name) QPixmap(GET_FILENAME_WITH_LANG(name))
