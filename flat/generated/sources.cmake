# Made by python3 schema/generator/generate.py.
set(generated_sources
    generated/color_values.cpp
    generated/conditions.cpp
    generated/device_color_values.cpp
    generated/devices.cpp
    generated/functions.cpp
    generated/groups.cpp
    generated/header.cpp
    generated/members.cpp
    generated/palettes.cpp
    generated/quality_control.cpp
    generated/recipes.cpp
    generated/sampled_color_values.cpp
    generated/samples.cpp
    generated/statistics.cpp
    generated/substrates.cpp
)
