# Theme engine, bottom sheet, pages and question views.
list(APPEND ui_sources)
list(APPEND ui_headers)
