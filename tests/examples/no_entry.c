/* A shared object that is no compiled library. */
__attribute__((visibility("default"))) int answer(void);
int answer(void) { return 42; }
