// written soon
