/* A program that asks for the library while it runs, by its name. Says as ldd does which files it
 * got: the library's own and that of its companion. */
#define _GNU_SOURCE
#include <dlfcn.h>
#include <stdio.h>

int main(void) {
    static const char* const functions[] = {"kfmgenGetLibVersion", "kfmMalloc"};
    void* library = dlopen("libkfmgenw7.so.6.1", RTLD_NOW);
    int i;
    if (!library) {
        printf("%s\n", dlerror());
        return 1;
    }
    for (i = 0; i < 2; ++i) {
        void* address = dlsym(library, functions[i]);
        Dl_info info;
        if (!address || !dladdr(address, &info)) return 1;
        printf("%s => %s (%p)\n", functions[i], info.dli_fname, address);
    }
    return 0;
}
