# The web addresses that the add-in opens, fixed when it is built: docs/building-for-fusion.md.
set(TARNIX_SITE "http://www.tarnix.example"
    CACHE STRING "Web server with the content of site/: http://HOST, with no slash at its end")
set(TARNIX_SUPPORT_PROVIDER "http://helpdesk.tarnix.example/"
    CACHE STRING "Web address of the default support provider")

foreach(variable TARNIX_SITE TARNIX_SUPPORT_PROVIDER)
    if(NOT "${${variable}}" MATCHES "^https?://[^/ \"\\]+[^ \"\\]*$")
        message(FATAL_ERROR "${variable} is \"${${variable}}\", but must be a web address without spaces, "
                            "quotes or backslashes, such as http://www.example.com")
    endif()
    if(TARNIX_FUSION_SDK AND "${${variable}}" MATCHES "\\.example(/|$)")
        message(WARNING "${variable} is \"${${variable}}\", which no browser can open: set it before you "
                        "hand out the package (docs/building-for-fusion.md)")
    endif()
endforeach()
# The palettes load their pages over http, in which a server may answer with a redirection.
if(NOT TARNIX_SITE MATCHES "^http://" OR TARNIX_SITE MATCHES "/$")
    message(FATAL_ERROR "TARNIX_SITE is \"${TARNIX_SITE}\", but must begin with http:// and end without a "
                        "slash")
endif()
