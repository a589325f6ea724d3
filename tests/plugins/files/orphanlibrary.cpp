__attribute__((visibility("default"))) int zrOrphanCount()
{
    return 1;
}
