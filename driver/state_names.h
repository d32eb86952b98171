// The words and lamp colours of the states that the driver reports as small numbers. All texts are
// constants; a value without a word reads "XXXX".
#pragma once

const char* MtuTypeToString(short type);
const char* ElanTypeToString(short type);
const char* BusStateToString(short state);
const char* SaalStateToString(unsigned char state);
const char* SigStateToString(unsigned char state);
const char* IlmiStateToString(unsigned char state);
const char* LmacStateToString(short state);  // a row of a client's MAC table

// What a layer of the signalling stack is doing.
enum LayerColor : unsigned { layerNotRunning = 0, layerInTransition = 1, layerUp = 2 };

unsigned IlmiStateToColor(unsigned char state);
unsigned SaalStateToColor(unsigned char state);
unsigned SigStateToColor(unsigned char state);
