#pragma once
// vkd_q, the suite's core: the ZOB record store, numbered settings, the search path
// and the message catalogues of the batch programs. No widget is needed here.

#include <QString>
#include <string>

using zob_status_t = int;

// Results of the store calls. 0 and 1 deliver a record; 2 and above deliver none.
enum ZobStatus : zob_status_t {
    ZOB_OK = 0,
    ZOB_TRUNCATED = 1,   // delivered, but the buffer was shorter than the record
    ZOB_END = 2,         // no record at this position: the sequence is at its end
    ZOB_NO_KEY = 3,      // nothing was ever stored under this key pair
    ZOB_BAD_ARGUMENT = 4,
    ZOB_NO_DATABASE = 5, // the index names no open database
    ZOB_BUSY = 6,        // another program held the write lock past the busy timeout
    ZOB_FAILED = 7       // any other error of the database
};

// Opens (or creates) a project file and gives its database index (1, 2, ...), or -1 and a
// message in *error. A file that is not a project is not modified.
int vkd_zob_open(const QString& path, bool create, QString* error);
void vkd_zob_close(int index);
QString vkd_zob_path(int index);

zob_status_t vkd_zob_get(int index, int key1, int key2, void* record, int* length, int position);
zob_status_t vkd_zob_put(int index, int key1, int key2, const void* record, const int* length,
                         int position);
zob_status_t vkd_zob_lock_ex(int index, int key1, int key2);
void vkd_zob_free_ex(int index, int key1, int key2);
// Asks whether a key pair holds records. mode 0: exactly *key1, *key2. mode 1: any key2 from
// *key2 up under *key1; the pair found is written back. When none is found, both become -1.
void vkd_zob_kenq_ex(int index, int* key1, int* key2, int mode);
// Number of records under the key pair, for tools and dumps.
int vkd_zob_count(int index, int key1, int key2);

// Numbered settings: the language of the desktop (0 German, 1 English), and the echo level
// written into the opening line of batch program blocks.
constexpr int kSettingLanguage = 102;
constexpr int kSettingEchoLevel = 108;
int vkd_lib_getvalue(int key);
void vkd_lib_setvalue(int key, int value);

// Looks a file up on the search path; empty if it is on none of the folders.
// mode bit 1: the folders of VKD_SEARCHPATH and the installed data folder;
// mode bit 2: the folder of the executable and its data/ folder. 3 searches all.
std::string vkd_lib_searchpath(const char* name, int mode);
QStringList vkd_lib_searchfolders(int mode);

// Message catalogue of a batch program, "<program>.msg" on the search path.
void vkd_lib_opentext(const char* program);
std::string vkd_lib_convtext(int textClass, int language, const char* key);
