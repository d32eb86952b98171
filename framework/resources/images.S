/* The files of framework/resources/images as they are; tools/render-art makes them. Paths are
   relative to the top of the source tree. */

        .macro image symbol, file
        .globl \symbol
        .type \symbol, @object
        .balign 4
\symbol:
        .incbin "framework/resources/images/\file"
        .size \symbol, . - \symbol
        .endm

        .section .rodata
        image imageSetup, "setup.bmp"
        image imageStats, "stats.bmp"
        image imageActivate, "activate.bmp"
        image imageGlobal, "global.bmp"
        image imageClose, "close.bmp"
        image imageLogo, "logo.bmp"
        image imageAdd, "add.bmp"
        image imageModify, "modify.bmp"
        image imageDelete, "delete.bmp"
        image imageInsert, "insert.bmp"
        image imageLayerLamp, "layer_lamp.bmp"
        image imageLamp, "lamp.bmp"
        image imageCancel, "cancel.bmp"
        image imageOndrelleIcon, "ondrelle.ico"
        image imageSetupIcon, "setup.ico"
        image imageStatsIcon, "stats.ico"
        image imageGlobalIcon, "global.ico"
        image imageColumnCursor, "column.cur"
        image imageRowCursor, "row.cur"

        .section .note.GNU-stack, "", @progbits
