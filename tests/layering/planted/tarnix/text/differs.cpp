// Planted: a difference between the systems outside platform/.
#ifdef _WIN32
#endif
