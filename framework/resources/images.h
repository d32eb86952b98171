#pragma once
const unsigned char* findImage(int id, int kind);
