# Finds what the programs are built from, and says in one line which package is missing.

function(ondrelle_need what package)
  if(NOT ${what})
    message(FATAL_ERROR "Missing ${package}: install it with 'apt-get install ${package}', or let ./run do so.")
  endif()
endfunction()

find_package(X11)
find_path(MOTIF_INCLUDE Xm/Xm.h)
find_library(MOTIF_LIBRARY Xm)

ondrelle_need(X11_FOUND libx11-dev)
ondrelle_need(X11_Xext_FOUND libxext-dev)
ondrelle_need(X11_Xt_FOUND libxt-dev)
ondrelle_need(X11_Xmu_FOUND libxmu-dev)
ondrelle_need(MOTIF_INCLUDE libmotif-dev)
ondrelle_need(MOTIF_LIBRARY libmotif-dev)

set(ONDRELLE_X_LIBRARIES ${MOTIF_LIBRARY} X11::Xmu X11::Xt X11::Xext X11::X11)
